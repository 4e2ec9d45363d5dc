#pragma once

#include "automation/local_object.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace rf::host {

/// Told of every change of a window's bars. Shared by all that is on them, so that it is set once.
using BarsChanged = std::shared_ptr<std::function<void()>>;

/// A button or a combo on a command bar.
class CommandBarControl final : public automation::LocalObject<CommandBarControl> {
public:
    static constexpr TextView className = u"CommandBarControl";

    CommandBarControl(std::int32_t type, std::int32_t id, BarsChanged changed)
        : type_(type)
        , id_(id)
        , changed_(std::move(changed))
    {
    }

    automation::Variant invoke(
        TextView name, automation::Invocation kind, std::span<automation::Variant> values) override;

    /// What a person does: presses the button.
    void click();
    /// What a person does: chooses or types a text in the combo.
    void choose(const Text& text);

    [[nodiscard]] std::int32_t type() const { return type_; }
    [[nodiscard]] std::int32_t id() const { return id_; }
    [[nodiscard]] bool isCombo() const;
    [[nodiscard]] std::int32_t width() const { return width_; }
    [[nodiscard]] std::int32_t style() const { return style_; }
    [[nodiscard]] std::int32_t faceId() const { return faceId_; }
    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool beginGroup() const { return beginGroup_; }
    [[nodiscard]] const Text& caption() const { return caption_; }
    [[nodiscard]] const Text& text() const { return text_; }
    [[nodiscard]] const std::vector<Text>& list() const { return list_; }
    [[nodiscard]] int executed() const { return executed_; }

    [[nodiscard]] static std::span<const automation::LocalMember<CommandBarControl>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;
    void requireCombo() const;
    [[nodiscard]] Text listed(std::int32_t position) const;

    std::int32_t type_;
    std::int32_t id_;
    std::int32_t width_ = 0;
    std::int32_t style_ = 0;
    std::int32_t faceId_ = 0;
    bool visible_ = true;
    bool enabled_ = true;
    bool beginGroup_ = false;
    Text caption_;
    Text text_;
    Text tag_;
    std::vector<Text> list_;
    int executed_ = 0;
    BarsChanged changed_;
    automation::EventSource events_;
};

class CommandBarControls final : public automation::LocalObject<CommandBarControls> {
public:
    static constexpr TextView className = u"CommandBarControls";

    explicit CommandBarControls(BarsChanged changed)
        : changed_(std::move(changed))
    {
    }

    std::shared_ptr<CommandBarControl> add(std::int32_t type, std::int32_t id);
    [[nodiscard]] const std::vector<std::shared_ptr<CommandBarControl>>& all() const { return controls_; }

    [[nodiscard]] static std::span<const automation::LocalMember<CommandBarControls>> members();

private:
    /// By position from 1 up or by caption; error 5 when there is none.
    [[nodiscard]] std::shared_ptr<CommandBarControl> item(const automation::Variant& index) const;

    BarsChanged changed_;
    std::vector<std::shared_ptr<CommandBarControl>> controls_;
};

class CommandBars;

class CommandBar final : public automation::LocalObject<CommandBar> {
public:
    static constexpr TextView className = u"CommandBar";

    CommandBar(std::weak_ptr<CommandBars> owner, Text name, std::int32_t position, const BarsChanged& changed)
        : owner_(std::move(owner))
        , name_(std::move(name))
        , position_(position)
        , changed_(changed)
        , controls_(std::make_shared<CommandBarControls>(changed))
    {
    }

    automation::Variant invoke(
        TextView name, automation::Invocation kind, std::span<automation::Variant> values) override;

    [[nodiscard]] const Text& name() const { return name_; }
    [[nodiscard]] std::int32_t position() const { return position_; }
    [[nodiscard]] bool visible() const { return visible_; }
    void show() { visible_ = true; }
    [[nodiscard]] CommandBarControls& controls() const { return *controls_; }

    [[nodiscard]] static std::span<const automation::LocalMember<CommandBar>> members();

private:
    std::weak_ptr<CommandBars> owner_;
    Text name_;
    std::int32_t position_;
    bool visible_ = false;
    BarsChanged changed_;
    std::shared_ptr<CommandBarControls> controls_;
};

/// The command bars of one window. What a program adds goes with the window.
class CommandBars final : public automation::LocalObject<CommandBars> {
public:
    static constexpr TextView className = u"CommandBars";

    /// The bars that the host's own windows have: an item window with its standard bar, a folder window with the bar
    /// of the home page.
    [[nodiscard]] static std::shared_ptr<CommandBars> ofInspector();
    [[nodiscard]] static std::shared_ptr<CommandBars> ofExplorer();

    /// A new bar, not yet visible. Error 5 when the name is taken.
    std::shared_ptr<CommandBar> add(const Text& name, std::int32_t position);
    void remove(const CommandBar& bar);
    [[nodiscard]] std::shared_ptr<CommandBar> find(TextView name) const;
    [[nodiscard]] const std::vector<std::shared_ptr<CommandBar>>& all() const { return bars_; }
    /// Called after every change of a bar or of a control on one.
    void setChanged(std::function<void()> changed) { *changed_ = std::move(changed); }

    [[nodiscard]] static std::span<const automation::LocalMember<CommandBars>> members();

private:
    /// By position from 1 up or by name; error 5 when there is none.
    [[nodiscard]] std::shared_ptr<CommandBar> item(const automation::Variant& index) const;
    /// The first control of an id; nothing when there is none.
    [[nodiscard]] std::shared_ptr<CommandBarControl> findControl(std::int32_t id) const;

    BarsChanged changed_ = std::make_shared<std::function<void()>>();
    std::vector<std::shared_ptr<CommandBar>> bars_;
};

} // namespace rf::host
