#include "linux/rfhost/windows/explorer_window.h"

#include "host/home_page_content.h"
#include "host/model.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/calendar_pane.h"
#include "linux/rfhost/windows/folder_tree.h"
#include "linux/rfhost/windows/home_page_view.h"
#include "linux/rfhost/windows/item_list_pane.h"
#include "outlook/constants.h"

#include <QSplitter>
#include <QStackedWidget>

namespace rf::native {

namespace {

/// A change of another process is seen within a second; this leaves room for a busy machine.
constexpr std::chrono::milliseconds followInterval{250};
constexpr QSize usualSize{1100, 720};

} // namespace

ExplorerWindow::ExplorerWindow(const std::shared_ptr<host::Explorer>& explorer, HomePage* homePage)
    : PlacedWindow(explorer->place())
    , explorer_(explorer)
    , homePage_(homePage)
    , bars_(*this, [this] { tell(); })
    , tree_(new FolderTree)
    , content_(new QStackedWidget)
    , calendar_(new CalendarPane{model()})
    , items_(new ItemListPane{model()})
    , changes_([this] { refresh(); })
{
    setObjectName(QStringLiteral("explorer"));
    setContextMenuPolicy(Qt::NoContextMenu);
    build();
    refresh();
    connect(&follower_, &QTimer::timeout, this, [this] { follow(); });
    follower_.start(followInterval);
}

ExplorerWindow::~ExplorerWindow() = default;

void ExplorerWindow::build()
{
    constexpr int treeWidth = 240;
    auto* const splitter = new QSplitter;
    splitter->addWidget(tree_);
    splitter->addWidget(content_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({treeWidth, usualSize.width() - treeWidth});
    splitter->setChildrenCollapsible(false);
    content_->addWidget(calendar_);
    content_->addWidget(items_);
    if (homePage_ != nullptr) {
        home_ = new HomePageView{model(), *homePage_};
        content_->addWidget(home_);
    }
    setCentralWidget(splitter);
    resize(usualSize);
    tree_->folderChosen = [this](host::FolderId folder) {
        later(this, [kept = explorer_, folder] {
            kept->switchTo(std::make_shared<host::Folder>(kept->folder()->model(), folder));
        });
    };
}

void ExplorerWindow::refresh()
{
    if (explorer_->isClosed())
        return;
    attempt(this, [this] {
        folders_ = model()->folders();
        tree_->show(folders_);
        tree_->choose(explorer_->folder()->id());
        setWindowTitle(qtText(explorer_->caption()));
        bars_.refresh(explorer_->commandBars());
        showFolder();
        seen_ = model()->store().lastChange();
    });
    takePlace();
}

void ExplorerWindow::showFolder()
{
    const host::FolderRecord folder = explorer_->folder()->record();
    if (home_ != nullptr && host::hasHomePage(folder)) {
        home_->show(folder);
        content_->setCurrentWidget(home_);
    } else if (folder.defaultItemType == static_cast<std::int32_t>(outlook::ItemType::Appointment)) {
        calendar_->show(folder);
        content_->setCurrentWidget(calendar_);
    } else {
        items_->show(folder);
        content_->setCurrentWidget(items_);
    }
}

void ExplorerWindow::follow()
{
    // The log of changes knows of items only.
    if (!explorer_->isClosed() && (model()->store().lastChange() != seen_ || model()->folders() != folders_))
        refresh();
}

void ExplorerWindow::closeWanted()
{
    later(this, [kept = explorer_] { kept->close(); });
}

void ExplorerWindow::cameToFront()
{
    later(this, [kept = explorer_] { kept->cameToFront(); });
}

} // namespace rf::native
