#pragma once

#include "ui/form_window.h"

#include <vector>

namespace rf::ui {

/// A form's window where there is no screen. Its controls keep what they are given, so that a form works on as if it
/// were seen; nobody ever presses anything.
class UnseenWindow : public FormWindow {
public:
    Label& addLabel(TextView name, Bounds bounds) override;
    TextBox& addTextBox(TextView name, Bounds bounds, LineBreaks lineBreaks) override;
    OptionButton& addOptionButton(TextView name, Bounds bounds) override;
    Button& addButton(TextView name, Bounds bounds, ButtonRole role) override;
    /// None: a spreadsheet or a browser is of no use where nobody sees it.
    AutomationControl* addAutomationControl(TextView className, TextView name) override;

    [[nodiscard]] Text caption() const override { return caption_; }
    void setCaption(TextView caption) override { caption_ = caption; }
    void setSize(std::int32_t width, std::int32_t height) override { size_ = {width, height}; }
    void setPosition(Point position) override { position_ = position; }
    void setParent(WindowHandle parent) override { parent_ = parent; }
    [[nodiscard]] WindowHandle handle() const override { return 0; }

    void show() override { shown_ = true; }
    /// Returns at once, as nobody is there to close it.
    void showModal() override { }
    void close() override { shown_ = false; }
    void setFocus() override { }

    [[nodiscard]] bool isShown() const { return shown_; }
    [[nodiscard]] Point position() const { return position_; }
    /// Width and height.
    [[nodiscard]] std::pair<std::int32_t, std::int32_t> size() const { return size_; }
    [[nodiscard]] WindowHandle parent() const { return parent_; }
    /// The control of that name; null when the form has none.
    [[nodiscard]] Control* find(TextView name) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

protected:
    void keep(std::unique_ptr<Control> control);

private:
    template <class Kind>
    Kind& add(std::unique_ptr<Kind> control);

    std::vector<std::unique_ptr<Control>> controls_;
    Text caption_;
    std::pair<std::int32_t, std::int32_t> size_{};
    Point position_;
    WindowHandle parent_ = 0;
    bool shown_ = false;
};

} // namespace rf::ui
