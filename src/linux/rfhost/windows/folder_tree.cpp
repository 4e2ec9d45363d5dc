#include "linux/rfhost/windows/folder_tree.h"

#include "host/home_page_content.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/roomy_rows.h"
#include "outlook/constants.h"

#include <QSignalBlocker>
#include <QStyle>
#include <set>

namespace rf::native {

namespace {

using host::FolderId;
using host::FolderRecord;

QIcon iconOf(const QStyle& style, const FolderRecord& folder)
{
    if (folder.parent == FolderId::None)
        return QIcon::fromTheme(QStringLiteral("user-home"), style.standardIcon(QStyle::SP_DirHomeIcon));
    if (host::hasHomePage(folder))
        return QIcon::fromTheme(QStringLiteral("go-home"), style.standardIcon(QStyle::SP_DirHomeIcon));
    switch (static_cast<outlook::ItemType>(folder.defaultItemType)) {
    case outlook::ItemType::Appointment:
        return QIcon::fromTheme(
            QStringLiteral("x-office-calendar"), style.standardIcon(QStyle::SP_FileDialogDetailedView));
    case outlook::ItemType::Mail:
        return QIcon::fromTheme(QStringLiteral("mail-folder-inbox"), style.standardIcon(QStyle::SP_DirIcon));
    case outlook::ItemType::Post:
        break;
    }
    return QIcon::fromTheme(QStringLiteral("folder"), style.standardIcon(QStyle::SP_DirIcon));
}

FolderId idOf(const QTreeWidgetItem& item) { return FolderId{item.data(0, Qt::UserRole).toLongLong()}; }

} // namespace

FolderTree::FolderTree(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setAccessibleName(QStringLiteral("Folders"));
    setObjectName(QStringLiteral("folders"));
    setUniformRowHeights(true);
    RoomyRows::giveTo(*this);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr && folderChosen)
            folderChosen(idOf(*item));
    });
}

void FolderTree::show(const std::vector<FolderRecord>& folders)
{
    if (folders == shown_)
        return;
    const QSignalBlocker quiet{this};
    const FolderId before = chosen();
    std::set<FolderId> closed;
    for (const auto& [id, item] : items_)
        if (!item->isExpanded())
            closed.insert(id);
    shown_ = folders;
    clear();
    items_.clear();
    for (const FolderRecord& folder : folders) {
        const auto parent = items_.find(folder.parent);
        auto* item = parent == items_.end() ? new QTreeWidgetItem{this} : new QTreeWidgetItem{parent->second};
        item->setText(0, qtText(folder.name));
        item->setIcon(0, iconOf(*style(), folder));
        item->setData(0, Qt::UserRole, static_cast<qlonglong>(folder.id));
        items_[folder.id] = item;
    }
    for (const auto& [id, item] : items_)
        item->setExpanded(!closed.contains(id));
    choose(before);
}

FolderId FolderTree::chosen() const
{
    const auto* item = currentItem();
    return item == nullptr ? FolderId::None : idOf(*item);
}

void FolderTree::choose(FolderId folder)
{
    const QSignalBlocker quiet{this};
    const auto found = items_.find(folder);
    setCurrentItem(found == items_.end() ? nullptr : found->second);
}

} // namespace rf::native
