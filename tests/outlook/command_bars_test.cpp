#include "member_use.h"

#include "outlook/command_bars.h"

namespace rf::outlook {

using namespace test;

TEST(CommandBarsFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<CommandBars>({
        {u"Count", Get, {}, 5, [](auto& bars) { return bars.count(); }},
        {u"Item", Get, {2}, other, [](auto& bars) { return bars.item(2); }},
        {u"Item", Get, {u"Web"}, other, [](auto& bars) { return bars.item(host_control::webBar); }},
        {u"Add", Call, {u"Bookings", 1, false, true}, other,
            [](auto& bars) { return bars.add(u"Bookings", BarPosition::Top, false, true); }},
        {u"FindControl", Call, {Missing{}, 1086}, other,
            [](auto& bars) { return bars.findControl(host_control::inviteAttendees); }},
    });
}

TEST(CommandBarFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<CommandBar>({
        {u"Name", Get, {}, u"Standard", [](auto& bar) { return bar.name(); }},
        {u"Position", Get, {}, 4, [](auto& bar) { return bar.position(); }},
        {u"Position", Put, {1}, {}, [](auto& bar) { bar.setPosition(BarPosition::Top); }},
        {u"Visible", Get, {}, false, [](auto& bar) { return bar.visible(); }},
        {u"Visible", Put, {true}, {}, [](auto& bar) { bar.setVisible(true); }},
        {u"Controls", Get, {}, other, [](auto& bar) { return bar.controls(); }},
        {u"FindControl", Call, {Missing{}, 1020}, other,
            [](auto& bar) { return bar.findControl(host_control::refreshPage); }},
        {u"Delete", Call, {}, {}, [](auto& bar) { bar.remove(); }},
    });
}

TEST(CommandBarControlsFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    const Missing none;
    expectUses<CommandBarControls>({
        {u"Count", Get, {}, 2, [](auto& controls) { return controls.count(); }},
        {u"Item", Get, {1}, other, [](auto& controls) { return controls.item(1); }},
        {u"Add", Call, {1, none, none, none, false}, other,
            [](auto& controls) { return controls.add(ControlType::Button, false); }},
        {u"Add", Call, {1, none, none, none, true}, other, [](auto& controls) { return controls.addButton(true); }},
        {u"Add", Call, {4, none, none, none, true}, other, [](auto& controls) { return controls.addComboBox(true); }},
    });
}

TEST(CommandBarControlFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<CommandBarControl>({
        {u"Id", Get, {}, 1086, [](auto& control) { return control.id(); }},
        {u"Type", Get, {}, 4, [](auto& control) { return control.type(); }},
        {u"Caption", Get, {}, u"Booking info", [](auto& control) { return control.caption(); }},
        {u"Caption", Put, {u"Projects"}, {}, [](auto& control) { control.setCaption(u"Projects"); }},
        {u"Tag", Get, {}, u"t", [](auto& control) { return control.tag(); }},
        {u"Tag", Put, {u"t"}, {}, [](auto& control) { control.setTag(u"t"); }},
        {u"Visible", Get, {}, true, [](auto& control) { return control.visible(); }},
        {u"Visible", Put, {false}, {}, [](auto& control) { control.setVisible(false); }},
        {u"Width", Get, {}, 60, [](auto& control) { return control.width(); }},
        {u"Width", Put, {240}, {}, [](auto& control) { control.setWidth(240); }},
        {u"BeginGroup", Get, {}, true, [](auto& control) { return control.beginGroup(); }},
        {u"BeginGroup", Put, {true}, {}, [](auto& control) { control.setBeginGroup(true); }},
        {u"Execute", Call, {}, {}, [](auto& control) { control.execute(); }},
        {u"Delete", Call, {}, {}, [](auto& control) { control.remove(); }},
    });
}

TEST(CommandBarButtonFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<CommandBarButton>({
        {u"FaceId", Get, {}, 790, [](auto& button) { return button.faceId(); }},
        {u"FaceId", Put, {790}, {}, [](auto& button) { button.setFaceId(790); }},
        {u"Style", Get, {}, 2, [](auto& button) { return button.style(); }},
        {u"Style", Put, {3}, {}, [](auto& button) { button.setStyle(ButtonStyle::IconAndCaption); }},
    });
}

TEST(CommandBarComboBoxFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<CommandBarComboBox>({
        {u"Style", Get, {}, 0, [](auto& combo) { return combo.style(); }},
        {u"Style", Put, {1}, {}, [](auto& combo) { combo.setStyle(ComboStyle::Label); }},
        {u"Text", Get, {}, u"Alpha", [](auto& combo) { return combo.text(); }},
        {u"Text", Put, {u"Alpha"}, {}, [](auto& combo) { combo.setText(u"Alpha"); }},
        {u"Clear", Call, {}, {}, [](auto& combo) { combo.clear(); }},
        {u"AddItem", Call, {u"Beta"}, {}, [](auto& combo) { combo.addItem(u"Beta"); }},
        {u"ListCount", Get, {}, 2, [](auto& combo) { return combo.listCount(); }},
        {u"List", Get, {1}, u"Alpha", [](auto& combo) { return combo.list(1); }},
    });
}

} // namespace rf::outlook
