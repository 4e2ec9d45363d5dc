#pragma once

#include "host/model.h"
#include "linux/rfhost/home_page.h"

#include <QElapsedTimer>
#include <QWidget>
#include <memory>

class QLabel;
class QListWidget;
class QPushButton;

namespace rf::native {

class CalendarPane;

/// The home page of the calendar product: its calendars to tick, and the one that is chosen beside them, so that nobody
/// has to leave the folder, with which the program ends that watches the bookings.
class HomePageView final : public QWidget {
public:
    /// `page` outlives it.
    HomePageView(std::shared_ptr<host::Model> model, HomePage& page);

    /// Shows the page of a root folder as it is now.
    void show(const host::FolderRecord& root);

private:
    [[nodiscard]] QWidget* buildSide();
    void listen();
    void refreshList();
    void showChosen();
    void addResource();
    void describe();
    [[nodiscard]] host::FolderId chosen() const;

    std::shared_ptr<host::Model> model_;
    HomePage& page_;
    host::FolderRecord root_;
    std::vector<HomePage::Calendar> shown_;
    /// Since a description was last asked for.
    QElapsedTimer described_;
    QLabel* title_;
    QListWidget* list_;
    QPushButton* add_;
    QPushButton* describe_;
    QLabel* hint_;
    CalendarPane* calendar_;
};

} // namespace rf::native
