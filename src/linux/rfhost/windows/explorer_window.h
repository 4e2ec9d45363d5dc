#pragma once

#include "host/explorers.h"
#include "linux/rfhost/windows/command_bar_view.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/placed_window.h"

#include <memory>

class QStackedWidget;

namespace rf::native {

class CalendarPane;
class FolderTree;
class HomePage;
class HomePageView;
class ItemListPane;

/// The window of an explorer: the folders, and what is in the one that is chosen.
class ExplorerWindow final : public PlacedWindow {
public:
    /// `homePage` outlives it; null where there is none.
    ExplorerWindow(const std::shared_ptr<host::Explorer>& explorer, HomePage* homePage);
    ~ExplorerWindow() override;
    ExplorerWindow(const ExplorerWindow&) = delete;
    ExplorerWindow& operator=(const ExplorerWindow&) = delete;

    /// The object has changed.
    void tell() { changes_.tell(); }

protected:
    void closeWanted() override;
    void cameToFront() override;

private:
    void build();
    void refresh();
    void showFolder();
    /// Looks whether somebody has changed the store since the last look.
    void follow();
    [[nodiscard]] const std::shared_ptr<host::Model>& model() const { return explorer_->folder()->model(); }

    std::shared_ptr<host::Explorer> explorer_;
    HomePage* homePage_;
    CommandBarView bars_;
    FolderTree* tree_;
    QStackedWidget* content_;
    CalendarPane* calendar_;
    ItemListPane* items_;
    /// Null without a home page.
    HomePageView* home_ = nullptr;
    /// The folders and the latest change, as they are shown.
    std::vector<host::FolderRecord> folders_;
    std::int64_t seen_ = -1;
    Gathered changes_;
    QTimer follower_;
};

} // namespace rf::native
