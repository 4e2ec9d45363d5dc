#include "ui/unseen_window.h"

#include <algorithm>

namespace rf::ui {

namespace {

/// A control that keeps what it is given.
template <class Kind>
class Unseen : public Kind {
public:
    Unseen(TextView name, Bounds bounds)
        : name_(name)
        , bounds_(bounds)
    {
    }

    [[nodiscard]] const Text& name() const override { return name_; }
    [[nodiscard]] Bounds bounds() const override { return bounds_; }
    void setBounds(Bounds bounds) override { bounds_ = bounds; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }
    [[nodiscard]] bool enabled() const override { return enabled_; }
    void setEnabled(bool enabled) override { enabled_ = enabled; }
    void setFocus() override
    {
        if (this->GotFocus)
            this->GotFocus();
    }

private:
    Text name_;
    Bounds bounds_;
    bool visible_ = true;
    bool enabled_ = true;
};

template <class Kind>
class UnseenCaptioned : public Unseen<Kind> {
public:
    using Unseen<Kind>::Unseen;

    [[nodiscard]] Text caption() const override { return caption_; }
    void setCaption(TextView caption) override { caption_ = caption; }

private:
    Text caption_;
};

class UnseenTextBox final : public Unseen<TextBox> {
public:
    using Unseen::Unseen;

    [[nodiscard]] Text text() const override { return text_; }
    void setText(TextView text) override { text_ = text; }
    [[nodiscard]] std::int32_t maxLength() const override { return maxLength_; }
    void setMaxLength(std::int32_t units) override { maxLength_ = units; }
    [[nodiscard]] bool readOnly() const override { return readOnly_; }
    void setReadOnly(bool readOnly) override { readOnly_ = readOnly; }

private:
    Text text_;
    std::int32_t maxLength_ = 0;
    bool readOnly_ = false;
};

class UnseenOptionButton final : public UnseenCaptioned<OptionButton> {
public:
    UnseenOptionButton(TextView name, Bounds bounds, const UnseenWindow& window)
        : UnseenCaptioned(name, bounds)
        , window_(window)
    {
    }

    [[nodiscard]] bool value() const override { return chosen_; }
    void setValue(bool chosen) override
    {
        if (chosen)
            for (const auto& control : window_.controls())
                if (auto* other = dynamic_cast<UnseenOptionButton*>(control.get()))
                    other->chosen_ = false;
        chosen_ = chosen;
    }

private:
    const UnseenWindow& window_;
    bool chosen_ = false;
};

} // namespace

void UnseenWindow::keep(std::unique_ptr<Control> control) { controls_.push_back(std::move(control)); }

template <class Kind>
Kind& UnseenWindow::add(std::unique_ptr<Kind> control)
{
    Kind& added = *control;
    keep(std::move(control));
    return added;
}

Label& UnseenWindow::addLabel(TextView name, Bounds bounds)
{
    return add(std::make_unique<UnseenCaptioned<Label>>(name, bounds));
}

TextBox& UnseenWindow::addTextBox(TextView name, Bounds bounds, LineBreaks /*lineBreaks*/)
{
    return add(std::make_unique<UnseenTextBox>(name, bounds));
}

OptionButton& UnseenWindow::addOptionButton(TextView name, Bounds bounds)
{
    return add(std::make_unique<UnseenOptionButton>(name, bounds, *this));
}

Button& UnseenWindow::addButton(TextView name, Bounds bounds, ButtonRole /*role*/)
{
    return add(std::make_unique<UnseenCaptioned<Button>>(name, bounds));
}

AutomationControl* UnseenWindow::addAutomationControl(TextView /*className*/, TextView /*name*/) { return nullptr; }

Control* UnseenWindow::find(TextView name) const
{
    const auto found
        = std::ranges::find(controls_, name, [](const auto& control) { return TextView{control->name()}; });
    return found == controls_.end() ? nullptr : found->get();
}

} // namespace rf::ui
