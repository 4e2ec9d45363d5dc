#include "orders/cost_center.h"

#include "basic/conversion.h"
#include "ui/controls.h"

namespace rf::orders {

namespace {

constexpr TextView threeCharacters = u"0";
constexpr std::size_t half = 3;

bool isDigitOrBackspace(char16_t key) { return (key >= u'0' && key <= u'9') || key == ui::backspaceKey; }

} // namespace

CostCenterFields costCenterFields(TextView format)
{
    if (format == splitCostCenter)
        return CostCenterFields::Halves;
    return format == wholeCostCenter ? CostCenterFields::Whole : CostCenterFields::None;
}

CostCenterTexts shownCostCenter(TextView format, TextView stored)
{
    CostCenterTexts texts;
    if (format == wholeCostCenter)
        texts.first = Text{stored};
    if (format != splitCostCenter)
        return texts;
    texts.first = Text{stored.substr(0, half)};
    if (stored.size() == 2 * half)
        texts.second = Text{stored.substr(half)};
    return texts;
}

std::optional<Text> storedCostCenter(TextView format, TextView first, TextView second)
{
    if (format == wholeCostCenter)
        return Text{first};
    if (format == splitCostCenter)
        return Text{first} + Text{second};
    return std::nullopt;
}

bool isCostCenterComplete(const Regional& regional, TextView format, TextView first, TextView second)
{
    if (format == wholeCostCenter)
        return !first.empty();
    if (format != threeCharacters || first.size() != half)
        return false;
    return second.empty() || (isNumeric(regional, first) && isNumeric(regional, second));
}

bool firstFieldTakes(TextView format, char16_t key) { return format != splitCostCenter || isDigitOrBackspace(key); }

bool secondFieldTakes(char16_t key) { return isDigitOrBackspace(key); }

bool goesToSecondField(TextView format, TextView first)
{
    return format == splitCostCenter && trim(first).size() == half;
}

} // namespace rf::orders
