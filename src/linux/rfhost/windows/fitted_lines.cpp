#include "linux/rfhost/windows/fitted_lines.h"

#include <QFontMetrics>
#include <QTextLayout>

namespace rf::native {

namespace {

/// Where the lines of a paragraph begin.
QList<int> breaksOf(const QString& paragraph, const QFont& font, int width)
{
    QList<int> starts;
    QTextLayout layout{paragraph, font};
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        starts.push_back(line.textStart());
    }
    layout.endLayout();
    return starts;
}

} // namespace

QStringList fittedLines(const QString& text, const QFont& font, QSize box)
{
    const QFontMetrics metrics{font};
    const int most = box.height() / metrics.lineSpacing();
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        const QList<int> starts = breaksOf(paragraph, font, box.width());
        for (qsizetype index = 0; index < starts.size(); ++index) {
            if (lines.size() >= most)
                return lines;
            const bool isFull = lines.size() + 1 == most || index + 1 == starts.size();
            const int start = starts[index];
            const QString line = isFull ? paragraph.mid(start) : paragraph.mid(start, starts[index + 1] - start);
            lines.push_back(metrics.elidedText(line.trimmed(), Qt::ElideRight, box.width()));
        }
    }
    return lines;
}

} // namespace rf::native
