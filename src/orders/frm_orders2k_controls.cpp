#include "orders/frm_orders2k_controls.h"

#include <algorithm>

namespace rf::orders {

namespace {

using ui::Bounds;

constexpr std::int32_t margin = 120;

// Two rows above the grid.
constexpr Bounds bookedBy{120, 150, 2300, 250};
constexpr Bounds booker{2520, 105, 3600, 315};
constexpr Bounds bookedAt{120, 510, 2300, 250};
constexpr Bounds createdAt{2520, 465, 3600, 315};

// Below it the total, then the comment beside the place settings, then the cost center beside the buttons.
constexpr Bounds orderSum{120, 3540, 6000, 250};
constexpr Bounds sum{6180, 3540, 2475, 250};
constexpr Bounds orderComment{120, 3900, 4200, 250};
constexpr Bounds comment{120, 4170, 4200, 1305};
constexpr Bounds placeSettings{4500, 3900, 4155, 250};
constexpr Bounds firstPlaceSetting{4500, 4170, 4155, 300};
constexpr std::int32_t placeSettingStep = 335;
constexpr Bounds costCenter{120, 5700, 2150, 250};
constexpr Bounds firstHalf{2340, 5655, 615, 315};
constexpr Bounds dash{3015, 5700, 105, 250};
constexpr Bounds secondHalf{3165, 5655, 615, 315};
constexpr Bounds ok{5580, 5655, 1480, 375};
constexpr Bounds cancel{7175, 5655, 1480, 375};

constexpr std::int32_t wholeWidth = 2535;
constexpr std::int32_t digitsInHalf = 3;

// Without an order.
constexpr std::int32_t buttonsTop = 960;
constexpr std::int32_t placeSettingsLeft = 120;
constexpr std::int32_t costCenterTop = 2745;

constexpr std::array<TextView, OrdersControls::placeSettings> placeSettingNames{
    u"optPlaceSetting1", u"optPlaceSetting2", u"optPlaceSetting3", u"optPlaceSetting4"};

std::array<ui::OptionButton*, OrdersControls::placeSettings> addPlaceSettings(ui::FormWindow& window)
{
    std::array<ui::OptionButton*, OrdersControls::placeSettings> options{};
    Bounds bounds = firstPlaceSetting;
    for (std::size_t index = 0; index < options.size(); ++index, bounds.top += placeSettingStep) {
        options.at(index) = &window.addOptionButton(placeSettingNames.at(index), bounds);
        options.at(index)->setVisible(false);
    }
    return options;
}

void move(ui::Control& control, std::int32_t right, std::int32_t down)
{
    Bounds bounds = control.bounds();
    bounds.left += right;
    bounds.top += down;
    control.setBounds(bounds);
}

} // namespace

OrdersControls::OrdersControls(ui::FormWindow& window)
    : lblBookedBy(window.addLabel(u"lblBookedBy", bookedBy))
    , txtBooker(window.addTextBox(u"txtBooker", booker))
    , lblBookedAt(window.addLabel(u"lblBookedAt", bookedAt))
    , txtCreatedAt(window.addTextBox(u"txtCreatedAt", createdAt))
    , lblOrderSum(window.addLabel(u"lblOrderSum", orderSum))
    , lblSum(window.addLabel(u"lblSum", sum))
    , lblOrderComment(window.addLabel(u"lblOrderComment", orderComment))
    , txtOrderComment(window.addTextBox(u"txtOrderComment", comment, ui::LineBreaks::Yes))
    , lblPlaceSettings(window.addLabel(u"lblPlaceSettings", orders::placeSettings))
    , optPlaceSetting(addPlaceSettings(window))
    , lblCC(window.addLabel(u"lblCC", costCenter))
    , txtCC1(window.addTextBox(u"txtCC1", firstHalf))
    , linCC(window.addLabel(u"linCC", dash))
    , txtCC2(window.addTextBox(u"txtCC2", secondHalf))
    , cmdOK(window.addButton(u"cmdOK", ok, ui::ButtonRole::Default))
    , cmdCancel(window.addButton(u"cmdCancel", cancel, ui::ButtonRole::Cancel))
{
    txtCreatedAt.setReadOnly(true);
    txtCC1.setMaxLength(digitsInHalf);
    txtCC2.setMaxLength(digitsInHalf);
    linCC.setCaption(u"-");
    for (ui::Control* control : std::initializer_list<ui::Control*>{&lblCC, &txtCC1, &linCC, &txtCC2})
        control->setVisible(false);
}

void OrdersControls::leaveOutOrder()
{
    for (ui::Control* control : std::initializer_list<ui::Control*>{&cmdOK, &cmdCancel})
        move(*control, 0, buttonsTop - control->bounds().top);
    for (ui::Control* control :
        std::initializer_list<ui::Control*>{&lblOrderSum, &lblSum, &lblOrderComment, &txtOrderComment})
        control->setVisible(false);
    const std::int32_t left = placeSettingsLeft - orders::placeSettings.left;
    const std::int32_t up = buttonsTop - orders::placeSettings.top;
    move(lblPlaceSettings, left, up);
    for (ui::OptionButton* option : optPlaceSetting)
        move(*option, left, up);
    for (ui::Control* control : std::initializer_list<ui::Control*>{&lblCC, &txtCC1, &linCC, &txtCC2})
        move(*control, 0, costCenterTop - costCenter.top);
}

void OrdersControls::widenComment()
{
    lblPlaceSettings.setVisible(false);
    Bounds bounds = txtOrderComment.bounds();
    bounds.width = gridWidth;
    txtOrderComment.setBounds(bounds);
}

void OrdersControls::showWholeCostCenter()
{
    Bounds bounds = txtCC1.bounds();
    bounds.width = wholeWidth;
    txtCC1.setBounds(bounds);
    txtCC1.setMaxLength(0);
    txtCC1.setVisible(true);
}

void OrdersControls::showHalvesOfCostCenter()
{
    for (ui::Control* control : std::initializer_list<ui::Control*>{&txtCC1, &linCC, &txtCC2})
        control->setVisible(true);
}

std::vector<ui::Control*> OrdersControls::all() const
{
    std::vector<ui::Control*> controls{&lblBookedBy, &txtBooker, &lblBookedAt, &txtCreatedAt, &lblOrderSum, &lblSum,
        &lblOrderComment, &txtOrderComment, &lblPlaceSettings, &lblCC, &txtCC1, &linCC, &txtCC2, &cmdOK, &cmdCancel};
    controls.insert(controls.end(), optPlaceSetting.begin(), optPlaceSetting.end());
    return controls;
}

ui::Bounds OrdersControls::extent() const
{
    Bounds needed{0, 0, gridLeft + gridWidth + margin, 0};
    for (const ui::Control* control : all())
        if (control->visible())
            needed.height = std::max(needed.height, control->bounds().top + control->bounds().height + margin);
    return needed;
}

} // namespace rf::orders
