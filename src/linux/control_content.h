#pragma once

#include "automation/object.h"
#include "basic/regional.h"

#include <functional>
#include <memory>

class QWidget;

namespace rf::native {

/// What a control of a run-time class holds: an automation object that works with and without a screen, and the widget
/// that shows it where there is one.
class ControlContent {
public:
    ControlContent() = default;
    ControlContent(const ControlContent&) = delete;
    ControlContent& operator=(const ControlContent&) = delete;
    virtual ~ControlContent() = default;

    [[nodiscard]] virtual automation::Object object() const = 0;
    /// At most one for each content. It may outlive the content, as the object may.
    [[nodiscard]] virtual QWidget* makeView(QWidget* parent) = 0;
    /// Calls back with the address of what is selected; a content without a selection never does.
    virtual void hearSelection(const std::function<void(const Text& address)>& /*heard*/) { }
};

/// The content for a class name such as "OWC.Spreadsheet"; null for a class that this platform does not have.
[[nodiscard]] std::unique_ptr<ControlContent> makeControlContent(
    TextView className, std::shared_ptr<const Regional> regional);

} // namespace rf::native
