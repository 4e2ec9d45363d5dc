#pragma once

#include "linux/spreadsheet_grid.h"

#include <QLabel>
#include <QTabBar>
#include <QToolBar>

namespace rf::native::spreadsheet {

/// A sheet on the screen: title bar, tools, cells, tabs. It shows what the sheet holds and follows its changes.
class View final : public QWidget {
public:
    View(std::shared_ptr<Sheet> sheet, QWidget* parent);
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    ~View() override;

    [[nodiscard]] GridView& grid() { return *grid_; }

private:
    void addTool(const QIcon& icon, const QString& sign, std::function<void()> use);
    void arrange();

    std::shared_ptr<Sheet> sheet_;
    QLabel* title_;
    QToolBar* tools_;
    GridView* grid_;
    QTabBar* tabs_;
};

} // namespace rf::native::spreadsheet
