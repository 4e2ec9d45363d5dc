#pragma once

#include "host/recurrence_choice.h"

#include <QDialog>
#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QRadioButton;
class QSpinBox;

namespace rf::native {

/// Lets a person choose how an appointment repeats.
class RecurrenceDialog final : public QDialog {
public:
    enum class Answer { Cancelled, Chosen, Removed };

    /// Begins with a choice for an appointment that begins at `start`. A series can be taken back to one appointment.
    RecurrenceDialog(QWidget* parent, const host::RecurrenceChoice& choice, Date start, bool isSeries);

    [[nodiscard]] Answer ask();
    [[nodiscard]] host::RecurrenceChoice choice() const;

private:
    void build(bool isSeries);
    [[nodiscard]] QWidget* patternRow();
    [[nodiscard]] QWidget* weekdayRow();
    [[nodiscard]] QWidget* monthRow();
    [[nodiscard]] QWidget* endRows();
    void show(const host::RecurrenceChoice& choice);
    void unitChosen();
    [[nodiscard]] host::RecurrenceChoice::Unit unit() const;

    Date start_;
    QSpinBox* interval_;
    QComboBox* unit_;
    std::array<QCheckBox*, 7> weekdays_{};
    QRadioButton* onDate_;
    QRadioButton* onWeekday_;
    QRadioButton* never_;
    QRadioButton* after_;
    QRadioButton* until_;
    QSpinBox* times_;
    QDateEdit* untilDay_;
    QWidget* weekdayRow_ = nullptr;
    QWidget* monthRow_ = nullptr;
};

} // namespace rf::native
