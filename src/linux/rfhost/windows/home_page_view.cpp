#include "linux/rfhost/windows/home_page_view.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/calendar_pane.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/roomy_rows.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>

namespace rf::native {

namespace {

constexpr int sideWidth = 200;
constexpr int usualWidth = 700;

host::FolderId idOf(const QListWidgetItem& item) { return host::FolderId{item.data(Qt::UserRole).toLongLong()}; }

} // namespace

HomePageView::HomePageView(std::shared_ptr<host::Model> model, HomePage& page)
    : model_(std::move(model))
    , page_(page)
    , title_(new QLabel)
    , list_(new QListWidget)
    , add_(new QPushButton{QStringLiteral("&Add a resource…")})
    , describe_(new QPushButton{QStringLiteral("Desc&ription")})
    , hint_(new QLabel{QStringLiteral("There is no resource yet. Add the first room or thing that people can book.")})
    , calendar_(new CalendarPane{model_})
{
    setObjectName(QStringLiteral("homePage"));
    auto* const splitter = new QSplitter;
    splitter->addWidget(buildSide());
    splitter->addWidget(calendar_);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({sideWidth, usualWidth});
    auto* const layout = new QHBoxLayout{this};
    layout->setContentsMargins({});
    layout->addWidget(splitter);
    listen();
}

QWidget* HomePageView::buildSide()
{
    constexpr float larger = 1.3F;
    auto* const side = new QWidget;
    side->setMinimumWidth(sideWidth / 2);
    QFont font = title_->font();
    font.setPointSizeF(font.pointSizeF() * larger);
    font.setBold(true);
    title_->setFont(font);
    hint_->setWordWrap(true);
    list_->setObjectName(QStringLiteral("calendars"));
    RoomyRows::giveTo(*list_);
    list_->setAccessibleName(QStringLiteral("Calendars"));
    list_->setAccessibleDescription(QStringLiteral("Bookings in the calendars that are ticked are checked."));
    add_->setObjectName(QStringLiteral("addResource"));
    describe_->setObjectName(QStringLiteral("description"));
    auto* const layout = new QVBoxLayout{side};
    layout->addWidget(title_);
    layout->addWidget(hint_);
    layout->addWidget(list_, 1);
    layout->addWidget(describe_);
    layout->addWidget(add_);
    return side;
}

void HomePageView::listen()
{
    connect(list_, &QListWidget::currentItemChanged, this, [this] { attempt(this, [this] { showChosen(); }); });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        attempt(this, [this, item] { page_.tick(root_.id, idOf(*item), item->checkState() == Qt::Checked); });
        shown_ = page_.calendars(root_.id);
    });
    connect(add_, &QPushButton::clicked, this, [this] { later(this, [this] { addResource(); }); });
    connect(describe_, &QPushButton::clicked, this, [this] { later(this, [this] { describe(); }); });
}

void HomePageView::show(const host::FolderRecord& root)
{
    root_ = root;
    title_->setText(qtText(root.name));
    refreshList();
    showChosen();
}

void HomePageView::refreshList()
{
    auto now = page_.calendars(root_.id);
    if (now == shown_)
        return;
    shown_ = std::move(now);
    const QSignalBlocker quiet{list_};
    const host::FolderId before = chosen();
    list_->clear();
    for (const HomePage::Calendar& calendar : shown_) {
        auto* const item = new QListWidgetItem{qtText(calendar.name), list_};
        item->setData(Qt::UserRole, static_cast<qlonglong>(calendar.id));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(calendar.ticked ? Qt::Checked : Qt::Unchecked);
        if (calendar.id == before || list_->currentRow() < 0)
            list_->setCurrentItem(item);
    }
    hint_->setVisible(list_->count() == 0);
}

host::FolderId HomePageView::chosen() const
{
    const auto* const item = list_->currentItem();
    return item == nullptr ? host::FolderId::None : idOf(*item);
}

void HomePageView::showChosen()
{
    const auto folder = model_->store().folder(chosen());
    calendar_->setVisible(folder.has_value());
    describe_->setEnabled(folder.has_value() && page_.hasProgram());
    if (folder)
        calendar_->show(*folder);
}

void HomePageView::addResource()
{
    bool accepted = false;
    const QPointer self{this};
    const QString name = QInputDialog::getText(this, QStringLiteral("Add a resource"),
        QStringLiteral("&Name of the room or thing that people can book:"), QLineEdit::Normal, {}, &accepted);
    if (!accepted || self == nullptr)
        return;
    const host::FolderId added = page_.addResource(root_.id, textOf(name));
    refreshList();
    for (int row = 0; row < list_->count(); ++row)
        if (idOf(*list_->item(row)) == added)
            list_->setCurrentRow(row);
}

void HomePageView::describe()
{
    // Two clicks that make a double click are meant as one: both programs would find the same one to replace, and stay.
    if (described_.isValid() && !described_.hasExpired(QApplication::doubleClickInterval()))
        return;
    described_.start();
    if (const auto* const item = list_->currentItem())
        page_.showDescription(root_.id, textOf(item->text()));
}

} // namespace rf::native
