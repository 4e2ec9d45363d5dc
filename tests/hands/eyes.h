#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QWidget>

namespace rf::test {

/// Where a test means: a window by its name or its title, and a widget in it by its own name, the name for people with
/// other needs, or its caption. Without a widget the window is meant, without a window any that is shown.
struct Place {
    QString window;
    QString widget;
};

/// The visible widget of a place; of several the one in the window in front. Null when there is none.
[[nodiscard]] QWidget* find(const Place& place);

/// What a person sees of a widget.
[[nodiscard]] QJsonObject look(const QWidget& widget);

/// Every visible window with its named widgets.
[[nodiscard]] QJsonArray lookAround();

/// Captions that are wider than their place, in any visible window.
[[nodiscard]] QJsonArray clippedTexts();

} // namespace rf::test
