#pragma once

#include "ui/unseen_window.h"

#include <memory>
#include <stdexcept>
#include <utility>

namespace rf::test {

/// A component on a form. What a person selects in it comes from the test.
class RecordingComponent final : public ui::AutomationControl {
public:
    RecordingComponent(TextView name, automation::Object object);

    [[nodiscard]] const Text& name() const override;
    [[nodiscard]] ui::Bounds bounds() const override;
    void setBounds(ui::Bounds bounds) override;
    [[nodiscard]] bool visible() const override;
    void setVisible(bool visible) override;
    [[nodiscard]] bool enabled() const override;
    void setEnabled(bool enabled) override;
    void setFocus() override;
    [[nodiscard]] automation::Object object() const override;

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

    explicit RecordingWindow(Owner& owner);
    RecordingWindow(const RecordingWindow&) = delete;
    RecordingWindow& operator=(const RecordingWindow&) = delete;
    ~RecordingWindow() override;

    /// The classes of components that the form asked for, in order.
    std::vector<Text> asked;

    ui::AutomationControl* addAutomationControl(TextView className, TextView name) override;
    void showModal() override;

    /// The control of that name and kind; the test ends when the form has none.
    template <class Kind = ui::Control>
    [[nodiscard]] Kind& at(TextView name) const
    {
        auto* control = dynamic_cast<Kind*>(find(name));
        if (control == nullptr)
            throw std::logic_error{"no such control: " + toUtf8(name)};
        return *control;
    }
    [[nodiscard]] Text textOf(TextView name) const;
    [[nodiscard]] Text labelOf(TextView name) const;
    [[nodiscard]] bool sees(TextView name) const;

    void press(TextView name) const;
    void choose(TextView name) const;
    /// Types key by key behind the text that is there. A key that is swallowed, or one too many, changes nothing.
    void type(TextView name, TextView keys) const;
    void replace(TextView name, TextView text) const;
    void focus(TextView name) const;
    void select(TextView name, const Text& address) const;
    /// Closes the window by its system box. The form may take the window away.
    void closeBySystemBox();

private:
    /// What a person can reach; the test ends when it is out of reach.
    template <class Kind>
    [[nodiscard]] Kind& usable(TextView name) const
    {
        auto& control = at<Kind>(name);
        if (!control.visible() || !control.enabled())
            throw std::logic_error{toUtf8(name) + " cannot be reached"};
        return control;
    }

    Owner& owner_;
    std::shared_ptr<char> alive_ = std::make_shared<char>();
};

} // namespace rf::test
