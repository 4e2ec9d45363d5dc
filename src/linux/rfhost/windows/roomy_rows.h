#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace rf::native {

/// Rows of a list with room around their text.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Gives a list such rows.
    static void giveTo(QAbstractItemView& view) { view.setItemDelegate(new RoomyRows{&view}); }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int share = 2;
        const QFontMetrics& metrics = option.fontMetrics;
        return QStyledItemDelegate::sizeHint(option, index)
            .grownBy({0, 0, metrics.averageCharWidth(), metrics.height() / share});
    }
};

} // namespace rf::native
