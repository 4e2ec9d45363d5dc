#pragma once

#include "host/appointment_times.h"
#include "host/item.h"

#include <QWidget>
#include <functional>
#include <memory>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimeEdit;

namespace rf::native {

/// A box with many lines that shows one text of an item. Line ends are those of the object model.
[[nodiscard]] QPlainTextEdit* makeBodyBox();
/// Shows a text unless it is shown already, so that the place in it stays.
void showBody(QPlainTextEdit& box, const Text& body);
[[nodiscard]] Text bodyOf(const QPlainTextEdit& box);

/// The first page of an appointment's window: it shows the working copy and writes into it what a person enters.
class AppointmentForm final : public QWidget {
public:
    explicit AppointmentForm(std::shared_ptr<host::Item> item);

    /// Shows the working copy as it is now.
    void refresh();
    std::function<void()> recurrenceWanted;

private:
    void build();
    void listen();
    void listenToText(QLineEdit& box, Text host::ItemRecord::*field);
    void edit(const std::function<void(host::ItemRecord& record)>& change);
    void editTimes(const std::function<host::AppointmentTimes(const host::AppointmentTimes& times)>& change);
    [[nodiscard]] host::AppointmentTimes times();
    void refreshTimes();
    void refreshRecurrence();

    std::shared_ptr<host::Item> item_;
    QFormLayout* layout_;
    QLineEdit* subject_;
    QLineEdit* location_;
    QLineEdit* attendees_;
    QDateEdit* startDay_;
    QTimeEdit* startTime_;
    QDateEdit* endDay_;
    QTimeEdit* endTime_;
    QCheckBox* allDay_;
    QLabel* recurrence_;
    QPushButton* recur_;
    QComboBox* busy_;
    QLineEdit* categories_;
    QPlainTextEdit* body_;
};

} // namespace rf::native
