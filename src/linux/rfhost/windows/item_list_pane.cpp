#include "linux/rfhost/windows/item_list_pane.h"

#include "host/calendar_entries.h"
#include "host/item_factory.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/qt_date.h"
#include "linux/rfhost/windows/roomy_rows.h"

#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace rf::native {

using host::ItemId;

namespace {

/// Empty for what its host knows no time of.
QString momentText(Date moment)
{
    return moment == noDate ? QString{} : shortDayText(moment) + QLatin1Char{' '} + timeText(moment);
}

} // namespace

ItemListPane::ItemListPane(std::shared_ptr<host::Model> model)
    : model_(std::move(model))
    , title_(new QLabel)
    , list_(new QTreeWidget)
{
    list_->setObjectName(QStringLiteral("items"));
    list_->setAccessibleName(QStringLiteral("Items"));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    RoomyRows::giveTo(*list_);
    list_->setHeaderLabels({QStringLiteral("Subject"), QStringLiteral("To"), QStringLiteral("Changed")});
    auto* const layout = new QVBoxLayout{this};
    layout->addWidget(title_);
    layout->addWidget(list_);
    connect(list_, &QTreeWidget::itemActivated, this, [this] { later(this, [this] { open(); }); });
}

void ItemListPane::show(const host::FolderRecord& folder)
{
    title_->setText(qtText(folder.name));
    list_->clear();
    auto ids = model_->store().items(folder.id);
    std::ranges::reverse(ids);
    for (const host::ItemId id : ids) {
        const auto record = model_->store().read(id);
        if (!record)
            continue;
        auto* const item = new QTreeWidgetItem{
            list_, {qtText(record->subject), qtText(record->to), momentText(record->lastModificationTime)}};
        item->setData(0, Qt::UserRole, static_cast<qlonglong>(id));
    }
    for (int column = 0; column + 1 < list_->columnCount(); ++column)
        list_->resizeColumnToContents(column);
}

void ItemListPane::open()
{
    const auto* const chosen = list_->currentItem();
    if (chosen == nullptr)
        return;
    if (auto record = model_->store().read(ItemId{chosen->data(0, Qt::UserRole).toLongLong()}))
        host::openItem(*host::itemOf(host::makeItem(model_, std::move(*record))));
}

} // namespace rf::native
