#include "linux/spreadsheet_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace rf::native::spreadsheet {

namespace {

/// The signs are drawn in a square of so many units.
constexpr double unitsAcross = 16;

void drawSheet(QPainter& painter, const QRectF& sheet)
{
    painter.drawRect(sheet);
    for (const double line : {0.3, 0.5, 0.7})
        painter.drawLine(QPointF{sheet.left() + 2, sheet.top() + sheet.height() * line},
            QPointF{sheet.right() - 2, sheet.top() + sheet.height() * line});
}

void drawScissors(QPainter& painter)
{
    painter.drawLine(QPointF{4, 1}, QPointF{10, 11});
    painter.drawLine(QPointF{12, 1}, QPointF{6, 11});
    painter.drawEllipse(QPointF{4.5, 12.5}, 2, 2);
    painter.drawEllipse(QPointF{11.5, 12.5}, 2, 2);
}

void drawTwoSheets(QPainter& painter)
{
    painter.drawPolyline(
        QPolygonF{{QPointF{4, 11}, QPointF{1.5, 11}, QPointF{1.5, 1.5}, QPointF{9, 1.5}, QPointF{9, 4}}});
    drawSheet(painter, {5, 4.5, 9, 10});
}

void drawClipboard(QPainter& painter)
{
    painter.drawRect(QRectF{2, 3, 12, 12});
    painter.drawRect(QRectF{5.5, 1, 5, 3.5});
    drawSheet(painter, {4.5, 6, 7, 7});
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
