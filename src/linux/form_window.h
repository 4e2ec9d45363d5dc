#pragma once

#include "basic/regional.h"
#include "linux/form_neighbours.h"
#include "ui/form_window.h"

#include <QDialog>

class QWindow;

namespace rf::native {

/// The window of a form in Qt. Twips become pixels by the logical dots per inch of the screen that it is on.
class QtFormWindow final : public ui::FormWindow {
public:
    /// `regional` are the settings under which spreadsheets show and read values.
    explicit QtFormWindow(std::shared_ptr<const Regional> regional);
    QtFormWindow(const QtFormWindow&) = delete;
    QtFormWindow& operator=(const QtFormWindow&) = delete;
    ~QtFormWindow() override;

    ui::Label& addLabel(TextView name, ui::Bounds bounds) override;
    ui::TextBox& addTextBox(TextView name, ui::Bounds bounds, ui::LineBreaks lineBreaks) override;
    ui::OptionButton& addOptionButton(TextView name, ui::Bounds bounds) override;
    ui::Button& addButton(TextView name, ui::Bounds bounds, ui::ButtonRole role) override;
    ui::AutomationControl* addAutomationControl(TextView className, TextView name) override;

    [[nodiscard]] Text caption() const override;
    void setCaption(TextView caption) override;
    void setSize(std::int32_t width, std::int32_t height) override;
    /// A place off the screen becomes the nearest on it.
    void setPosition(ui::Point position) override;
    void setParent(ui::WindowHandle parent) override;
    [[nodiscard]] ui::WindowHandle handle() const override;

    void show() override;
    void showModal() override;
    void close() override;
    void setFocus() override;

    /// The window itself; each control is its child under the control's name.
    [[nodiscard]] QDialog& dialog() const;
    [[nodiscard]] const FormControls& controls() const { return controls_; }

private:
    class Dialog;

    template <class Kind>
    Kind& keep(std::unique_ptr<Kind> control);
    void prepare();
    void place();
    void escape();
    [[nodiscard]] bool mayClose();

    /// Belongs to Qt's own list of windows: it may have to outlive this object, whose end a handler can cause.
    Dialog* dialog_;
    std::shared_ptr<const Regional> regional_;
    FormControls controls_;
    std::unique_ptr<QWindow> foreignParent_;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
};

/// The names of the visible controls whose caption does not fit, in the order in which they were added: measured in
/// their font against their room. None for a window that is not Qt's.
[[nodiscard]] std::vector<Text> clippedCaptions(const ui::FormWindow& window);

} // namespace rf::native
