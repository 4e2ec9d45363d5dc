#include "linux/spreadsheet_html.h"

namespace rf::native::spreadsheet {

namespace {

constexpr double pointsPerCharacter = 5.25;

Text escaped(TextView text)
{
    Text safe;
    for (const char16_t unit : text) {
        switch (unit) {
        case u'<':
            safe += u"&lt;";
            break;
        case u'>':
            safe += u"&gt;";
            break;
        case u'&':
            safe += u"&amp;";
            break;
        case u'"':
            safe += u"&quot;";
            break;
        case u'\'':
            safe += u"&#39;";
            break;
        default:
            safe += unit;
        }
    }
    return safe;
}

Text webColor(std::int32_t color)
{
    constexpr TextView digits = u"0123456789abcdef";
    Text text = u"#";
    for (int part = 0; part < 3; ++part, color >>= 8) {
        const auto share = static_cast<std::size_t>(color & 0xFF);
        text += digits[share / digits.size()];
        text += digits[share % digits.size()];
    }
    return text;
}

TextView webStyle(LineStyle style)
{
    switch (style) {
    case LineStyle::Dash:
        return u"dashed";
    case LineStyle::Dot:
        return u"dotted";
    case LineStyle::Solid:
    case LineStyle::None:
        break;
    }
    return u"solid";
}

Text borderStyles(const Sheet& sheet, Cell cell)
{
    constexpr std::array<TextView, edgeCount> sides{u"left", u"top", u"bottom", u"right"};
    Text styles;
    for (std::size_t edge = 0; edge < edgeCount; ++edge) {
        const Borders& borders = sheet.formats().borders.at(edge);
        const LineStyle style = borders.style.at(cell);
        if (style == LineStyle::None)
            continue;
        styles += u";border-" + Text{sides.at(edge)} + u":"
            + decimal(lineWidthOf(sheet.generation(), borders.weight.at(cell))) + u"px " + Text{webStyle(style)} + u" "
            + webColor(borders.color.at(cell));
    }
    return styles;
}

TextView alignmentIn(const Sheet& sheet, Cell cell)
{
    switch (sheet.formats().alignment.at(cell)) {
    case Alignment::Left:
        return u"left";
    case Alignment::Center:
        return u"center";
    case Alignment::Right:
        return u"right";
    case Alignment::General:
        break;
    }
    const auto value = sheet.value(cell);
    return value.isEmpty() || value.is<Text>() ? u"" : u"right";
}

Text cellStyles(const Sheet& sheet, Cell cell)
{
    const Formats& formats = sheet.formats();
    Text styles = u"font-size:" + sheet.regional().formatFixed(formats.fontSize.at(cell), 0) + u"pt";
    // A box needs no symbol font: it is written as the character for a box.
    if (!sheet.tick(cell))
        styles += u";font-family:" + escaped(formats.fontName.at(cell));
    if (formats.bold.at(cell))
        styles += u";font-weight:bold";
    if (const auto color = formats.interior.at(cell))
        styles += u";background-color:" + webColor(*color);
    if (const auto alignment = alignmentIn(sheet, cell); !alignment.empty())
        styles += u";text-align:" + Text{alignment};
    return styles + borderStyles(sheet, cell);
}

Text cellText(const Sheet& sheet, Cell cell)
{
    if (const auto ticked = sheet.tick(cell))
        return *ticked ? u"&#9745;" : u"&#9744;";
    const Text text = escaped(sheet.shown(cell));
    return text.empty() ? u"&nbsp;" : text;
}

} // namespace

Text htmlOf(const Sheet& sheet, const Area& area)
{
    Text page = u"<html><head><meta charset=\"utf-8\"><title>" + escaped(sheet.appearance().title)
        + u"</title></head><body><table style=\"border-collapse:collapse\">\r\n";
    const auto seen = area.common(sheet.appearance().viewable);
    for (std::int32_t row = seen ? seen->first.row : 1; seen && row <= seen->last.row; ++row) {
        if (sheet.isRowHidden(row))
            continue;
        page += u"<tr>";
        for (std::int32_t column = seen->first.column; column <= seen->last.column; ++column) {
            const double width = sheet.columnWidth(column);
            if (width > 0)
                page += u"<td dir=\"auto\" width=\"" + decimal(static_cast<long long>(width * pointsPerCharacter))
                    + u"\" style=\"" + cellStyles(sheet, {row, column}) + u"\">" + cellText(sheet, {row, column})
                    + u"</td>";
        }
        page += u"</tr>\r\n";
    }
    return page + u"</table></body></html>";
}

} // namespace rf::native::spreadsheet
