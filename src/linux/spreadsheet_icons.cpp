#include "linux/spreadsheet_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <array>

namespace rf::native::spreadsheet {

namespace {

// The signs are drawn in a square of so many units.
constexpr double unitsAcross = 16;

constexpr std::array blades{QLineF{4, 1, 10, 11}, QLineF{12, 1, 6, 11}};
constexpr std::array handles{QRectF{2.5, 10.5, 4, 4}, QRectF{9.5, 10.5, 4, 4}};

/// What can be seen of a sheet behind another one.
constexpr std::array sheetBehind{QPointF{4, 11}, QPointF{1.5, 11}, QPointF{1.5, 1.5}, QPointF{9, 1.5}, QPointF{9, 4}};
constexpr QRectF sheetInFront{5, 4.5, 9, 10};

constexpr QRectF board{2, 3, 12, 12};
constexpr QRectF clip{5.5, 1, 5, 3.5};
constexpr QRectF sheetOnBoard{4.5, 6, 7, 7};

/// The lines of a sheet, as shares of its height, and how far they are from its edges.
constexpr std::array textLines{0.3, 0.5, 0.7};
constexpr double textMargin = 2;

void drawSheet(QPainter& painter, const QRectF& sheet)
{
    painter.drawRect(sheet);
    for (const double share : textLines) {
        const double height = sheet.top() + sheet.height() * share;
        painter.drawLine(QPointF{sheet.left() + textMargin, height}, QPointF{sheet.right() - textMargin, height});
    }
}

void drawScissors(QPainter& painter)
{
    for (const QLineF& blade : blades)
        painter.drawLine(blade);
    for (const QRectF& handle : handles)
        painter.drawEllipse(handle);
}

void drawTwoSheets(QPainter& painter)
{
    painter.drawPolyline(sheetBehind.data(), static_cast<int>(sheetBehind.size()));
    drawSheet(painter, sheetInFront);
}

void drawClipboard(QPainter& painter)
{
    painter.drawRect(board);
    painter.drawRect(clip);
    drawSheet(painter, sheetOnBoard);
}

/// Draws anew each time, so that it follows the palette.
class ToolIcon final : public QIconEngine {
public:
    explicit ToolIcon(ToolSign sign)
        : sign_(sign)
    {
    }
    void paint(QPainter* painter, const QRect& room, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double scale = std::min(room.width(), room.height()) / unitsAcross;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen{QGuiApplication::palette().color(group, QPalette::ButtonText), 1});
        painter->setBrush(Qt::NoBrush);
        painter->translate(room.topLeft());
        painter->scale(scale, scale);
        draw(*painter);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn{size};
        drawn.fill(Qt::transparent);
        QPainter painter{&drawn};
        paint(&painter, QRect{QPoint{}, size}, mode, state);
        return drawn;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new ToolIcon{sign_}; }

private:
    void draw(QPainter& painter) const
    {
        switch (sign_) {
        case ToolSign::Cut:
            drawScissors(painter);
            break;
        case ToolSign::Copy:
            drawTwoSheets(painter);
            break;
        case ToolSign::Paste:
            drawClipboard(painter);
            break;
        }
    }

    ToolSign sign_;
};

} // namespace

QIcon drawnIcon(ToolSign sign) { return QIcon{new ToolIcon{sign}}; }

} // namespace rf::native::spreadsheet
