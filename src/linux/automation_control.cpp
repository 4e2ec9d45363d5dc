#include "linux/automation_control.h"

namespace rf::native {

namespace {

class UnseenAutomationControl final : public ui::AutomationControl {
public:
    UnseenAutomationControl(TextView name, std::unique_ptr<ControlContent> content)
        : name_(name)
        , content_(std::move(content))
    {
        content_->hearSelection([this](const Text& address) { raise(SelectionChange, address); });
    }

    [[nodiscard]] const Text& name() const override { return name_; }
    [[nodiscard]] ui::Bounds bounds() const override { return bounds_; }
    void setBounds(ui::Bounds bounds) override { bounds_ = bounds; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }
    [[nodiscard]] bool enabled() const override { return enabled_; }
    void setEnabled(bool enabled) override { enabled_ = enabled; }
    void setFocus() override { raise(GotFocus); }
    [[nodiscard]] automation::Object object() const override { return content_->object(); }

private:
    Text name_;
    std::unique_ptr<ControlContent> content_;
    ui::Bounds bounds_;
    bool visible_ = true;
    bool enabled_ = true;
};

} // namespace

QtAutomationControl::QtAutomationControl(QWidget* parent, TextView name, std::unique_ptr<ControlContent> content)
    : QtControl(content->makeView(parent), name, {})
    , content_(std::move(content))
{
    content_->hearSelection([this](const Text& address) { raise(SelectionChange, address); });
    // The part that takes the keys is the one that is heard to get the focus.
    if (QWidget* focused = widget().focusProxy())
        focused->installEventFilter(this);
    widget().show();
}

ui::AutomationControl* UnseenWindowWithControls::addAutomationControl(TextView className, TextView name)
{
    auto content = makeControlContent(className, regional_);
    if (content == nullptr)
        return nullptr;
    auto control = std::make_unique<UnseenAutomationControl>(name, std::move(content));
    auto* const added = control.get();
    keep(std::move(control));
    return added;
}

} // namespace rf::native
