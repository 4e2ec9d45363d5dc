#pragma once

#include "ui/controls.h"
#include "ui/toolkit.h"

#include <memory>

namespace rf::ui {

enum class LineBreaks { No, Yes };

/// What a button is besides a button: pressed by the Enter key, or by the Escape key.
enum class ButtonRole { Plain, Default, Cancel };

/// The window of a form, as a toolkit makes it, with the controls on it. The form that owns it holds the behaviour; the
/// window holds none. References to controls stay good as long as the window.
class FormWindow {
public:
    virtual ~FormWindow() = default;

    virtual Label& addLabel(TextView name, Bounds bounds) = 0;
    virtual TextBox& addTextBox(TextView name, Bounds bounds, LineBreaks lineBreaks = LineBreaks::No) = 0;
    virtual OptionButton& addOptionButton(TextView name, Bounds bounds) = 0;
    virtual Button& addButton(TextView name, Bounds bounds, ButtonRole role = ButtonRole::Plain) = 0;
    /// A control of a class such as "OWC.Spreadsheet"; null when the platform has none of that class.
    virtual AutomationControl* addAutomationControl(TextView className, TextView name) = 0;

    [[nodiscard]] virtual Text caption() const = 0;
    virtual void setCaption(TextView caption) = 0;
    /// The inner size, in twips. It does not follow the controls.
    virtual void setSize(std::int32_t width, std::int32_t height) = 0;
    /// Where the window stands on the screen, in twips.
    virtual void setPosition(Point position) = 0;
    /// Keeps the window above one of another program (or of this one); 0 lets it go.
    virtual void setParent(WindowHandle parent) = 0;
    [[nodiscard]] virtual WindowHandle handle() const = 0;

    /// Shows the window and returns at once.
    virtual void show() = 0;
    /// Shows the window and handles events until it is closed. No other window of the program reacts meanwhile.
    virtual void showModal() = 0;
    /// Takes the window from the screen without asking `QueryUnload`.
    virtual void close() = 0;
    virtual void setFocus() = 0;

    /// Raised when a person closes the window; false keeps it open. The form answers before it goes.
    std::function<bool()> QueryUnload;
};

} // namespace rf::ui
