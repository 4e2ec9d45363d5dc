#pragma once

#include "ui/unseen_window.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <utility>

namespace rf::test {

/// A component on a form. What a person selects in it comes from the test.
class RecordingComponent final : public ui::AutomationControl {
public:
    RecordingComponent(TextView name, automation::Object object)
        : name_(name)
        , object_(std::move(object))
    {
    }

    [[nodiscard]] const Text& name() const override { return name_; }
    [[nodiscard]] ui::Bounds bounds() const override { return bounds_; }
    void setBounds(ui::Bounds bounds) override { bounds_ = bounds; }
    [[nodiscard]] bool visible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }
    [[nodiscard]] bool enabled() const override { return enabled_; }
    void setEnabled(bool enabled) override { enabled_ = enabled; }
    void setFocus() override { }
    [[nodiscard]] automation::Object object() const override { return object_; }

private:
    Text name_;
    automation::Object object_;
    ui::Bounds bounds_;
    bool visible_ = true;
    bool enabled_ = true;
};

/// A form's window without a screen, used by a test as a person uses one: only what can be seen can be pressed.
class RecordingWindow final : public ui::UnseenWindow {
public:
    class Owner {
    public:
        virtual ~Owner() = default;
        virtual automation::Object component(TextView className) = 0;
        virtual void shownModal(RecordingWindow& window) = 0;
        virtual void destroyed(RecordingWindow& window) = 0;
    };

    explicit RecordingWindow(Owner& owner)
        : owner_(owner)
    {
    }
    RecordingWindow(const RecordingWindow&) = delete;
    RecordingWindow& operator=(const RecordingWindow&) = delete;
    ~RecordingWindow() override { owner_.destroyed(*this); }

    /// The classes of components that the form asked for, in order.
    std::vector<Text> asked;

    ui::AutomationControl* addAutomationControl(TextView className, TextView name) override
    {
        asked.emplace_back(className);
        const auto object = owner_.component(className);
        if (!object)
            return nullptr;
        auto component = std::make_unique<RecordingComponent>(name, object);
        auto* const added = component.get();
        keep(std::move(component));
        return added;
    }
    void showModal() override
    {
        show();
        owner_.shownModal(*this);
    }

    /// The control of that name and kind; the test ends when the form has none.
    template <class Kind = ui::Control>
    [[nodiscard]] Kind& at(TextView name) const
    {
        auto* control = dynamic_cast<Kind*>(find(name));
        if (control == nullptr)
            throw std::logic_error{"no such control: " + toUtf8(name)};
        return *control;
    }
    [[nodiscard]] Text textOf(TextView name) const { return at<ui::TextBox>(name).text(); }
    [[nodiscard]] Text labelOf(TextView name) const { return at<ui::Label>(name).caption(); }
    [[nodiscard]] bool sees(TextView name) const { return at(name).visible(); }

    void press(TextView name) const
    {
        auto& button = usable<ui::Button>(name);
        run(button.Click);
    }
    void choose(TextView name) const
    {
        auto& option = usable<ui::OptionButton>(name);
        option.setFocus();
        option.setValue(true);
        run(option.Click);
    }
    /// Types key by key behind the text that is there. A key that is swallowed, or one too many, changes nothing.
    void type(TextView name, TextView keys) const
    {
        auto& box = usable<ui::TextBox>(name);
        box.setFocus();
        for (const char16_t unit : keys) {
            char16_t key = unit;
            if (const auto pressed = box.KeyPressed)
                pressed(key);
            enter(box, key);
            run(box.KeyUp);
        }
    }
    void replace(TextView name, TextView text) const
    {
        at<ui::TextBox>(name).setText({});
        type(name, text);
    }
    void focus(TextView name) const { usable<ui::Control>(name).setFocus(); }
    void select(TextView name, const Text& address) const
    {
        const auto selected = usable<ui::AutomationControl>(name).SelectionChange;
        if (selected)
            selected(address);
    }
    /// Closes the window by its system box. The form may take the window away.
    void closeBySystemBox()
    {
        const std::weak_ptr<char> alive = alive_;
        const auto mayClose = QueryUnload;
        if ((!mayClose || mayClose()) && !alive.expired())
            close();
    }

private:
    template <class Kind>
    [[nodiscard]] Kind& usable(TextView name) const
    {
        auto& control = at<Kind>(name);
        EXPECT_TRUE(control.visible() && control.enabled()) << toUtf8(name) << " cannot be reached";
        return control;
    }
    static void enter(ui::TextBox& box, char16_t key)
    {
        Text text = box.text();
        if (key == ui::backspaceKey && !text.empty())
            text.pop_back();
        const auto limit = static_cast<std::size_t>(box.maxLength());
        if (key >= u' ' && !box.readOnly() && (limit == 0 || text.size() < limit))
            text += key;
        box.setText(text);
    }
    /// The handler is copied, since it may take the form away.
    static void run(const std::function<void()>& handler)
    {
        if (const auto running = handler)
            running();
    }

    Owner& owner_;
    std::shared_ptr<char> alive_ = std::make_shared<char>();
};

} // namespace rf::test
