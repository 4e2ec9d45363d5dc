#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace rf::native {

/// Rows of a list with room above and below their text.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Gives a list such rows.
    static void giveTo(QAbstractItemView& view) { view.setItemDelegate(new RoomyRows{&view}); }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int share = 2;
        return QStyledItemDelegate::sizeHint(option, index).grownBy({0, 0, 0, option.fontMetrics.height() / share});
    }
};

} // namespace rf::native
