#pragma once

#include "host/inspectors.h"
#include "linux/rfhost/windows/command_bar_view.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/placed_window.h"

#include <memory>

class QTabWidget;

namespace rf::native {

class AppointmentForm;
class MessageForm;
class SchedulingPage;

/// The window of an inspector. It shows the working copy of an item, and what a person does goes to its objects.
class InspectorWindow final : public PlacedWindow {
public:
    explicit InspectorWindow(const std::shared_ptr<host::Inspector>& inspector);
    ~InspectorWindow() override;
    InspectorWindow(const InspectorWindow&) = delete;
    InspectorWindow& operator=(const InspectorWindow&) = delete;

    /// The object or its item has changed.
    void tell() { changes_.tell(); }

protected:
    void closeWanted() override;
    void cameToFront() override;

private:
    void buildBar();
    void buildPages();
    void addPage(QWidget* page, TextView name);
    void refresh();
    void showPages();
    void chooseRecurrence();
    void saveAndClose();
    void save();
    void removeItem();
    [[nodiscard]] host::Item& item() const { return inspector_->item(); }

    std::shared_ptr<host::Inspector> inspector_;
    CommandBarView bars_;
    QTabWidget* tabs_;
    AppointmentForm* appointment_ = nullptr;
    SchedulingPage* scheduling_ = nullptr;
    MessageForm* message_ = nullptr;
    Gathered changes_;
};

} // namespace rf::native
