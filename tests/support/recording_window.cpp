#include "support/recording_window.h"

namespace rf::test {

namespace {

void enter(ui::TextBox& box, char16_t key)
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
void run(const std::function<void()>& handler)
{
    if (const auto running = handler)
        running();
}

} // namespace

RecordingComponent::RecordingComponent(TextView name, automation::Object object)
    : name_(name)
    , object_(std::move(object))
{
}

const Text& RecordingComponent::name() const { return name_; }

ui::Bounds RecordingComponent::bounds() const { return bounds_; }

void RecordingComponent::setBounds(ui::Bounds bounds) { bounds_ = bounds; }

bool RecordingComponent::visible() const { return visible_; }

void RecordingComponent::setVisible(bool visible) { visible_ = visible; }

bool RecordingComponent::enabled() const { return enabled_; }

void RecordingComponent::setEnabled(bool enabled) { enabled_ = enabled; }

void RecordingComponent::setFocus() { }

automation::Object RecordingComponent::object() const { return object_; }

RecordingWindow::RecordingWindow(Owner& owner)
    : owner_(owner)
{
}

RecordingWindow::~RecordingWindow() { owner_.destroyed(*this); }

ui::AutomationControl* RecordingWindow::addAutomationControl(TextView className, TextView name)
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

void RecordingWindow::showModal()
{
    show();
    owner_.shownModal(*this);
}

Text RecordingWindow::textOf(TextView name) const { return at<ui::TextBox>(name).text(); }

Text RecordingWindow::labelOf(TextView name) const { return at<ui::Label>(name).caption(); }

bool RecordingWindow::sees(TextView name) const { return at(name).visible(); }

void RecordingWindow::press(TextView name) const
{
    auto& button = usable<ui::Button>(name);
    run(button.Click);
}

void RecordingWindow::choose(TextView name) const
{
    auto& option = usable<ui::OptionButton>(name);
    option.setFocus();
    option.setValue(true);
    run(option.Click);
}

void RecordingWindow::type(TextView name, TextView keys) const
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

void RecordingWindow::replace(TextView name, TextView text) const
{
    at<ui::TextBox>(name).setText({});
    type(name, text);
}

void RecordingWindow::focus(TextView name) const { usable<ui::Control>(name).setFocus(); }

void RecordingWindow::select(TextView name, const Text& address) const
{
    const auto selected = usable<ui::AutomationControl>(name).SelectionChange;
    if (selected)
        selected(address);
}

void RecordingWindow::closeBySystemBox()
{
    const std::weak_ptr<char> alive = alive_;
    const auto mayClose = QueryUnload;
    if ((!mayClose || mayClose()) && !alive.expired())
        close();
}

} // namespace rf::test
