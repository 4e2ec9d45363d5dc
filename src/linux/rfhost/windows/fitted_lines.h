#pragma once

#include <QFont>
#include <QSize>
#include <QStringList>

namespace rf::native {

/// The lines of a text that a box shows, as many as are whole in it: broken between words, and within one that is wider
/// than the box. The last one ends with an ellipsis where more would follow.
[[nodiscard]] QStringList fittedLines(const QString& text, const QFont& font, QSize box);

} // namespace rf::native
