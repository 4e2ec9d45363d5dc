#pragma once

#include "host/item.h"

#include <QWidget>
#include <memory>

class QLabel;
class QTreeWidget;

namespace rf::native {

/// The second page of an appointment's window: what else its calendar holds on the days that it takes.
class SchedulingPage final : public QWidget {
public:
    explicit SchedulingPage(std::shared_ptr<host::Item> item);

    /// Reads the calendar anew when the page is in front; else when it comes there.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void read();

    std::shared_ptr<host::Item> item_;
    QLabel* summary_;
    QTreeWidget* list_;
};

} // namespace rf::native
