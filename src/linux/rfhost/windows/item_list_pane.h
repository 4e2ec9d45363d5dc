#pragma once

#include "host/model.h"

#include <QWidget>
#include <memory>

class QLabel;
class QTreeWidget;

namespace rf::native {

/// The mails or posts of a folder, the newest first.
class ItemListPane final : public QWidget {
public:
    explicit ItemListPane(std::shared_ptr<host::Model> model);

    /// Shows a folder as it is now.
    void show(const host::FolderRecord& folder);

private:
    void open();

    std::shared_ptr<host::Model> model_;
    QLabel* title_;
    QTreeWidget* list_;
};

} // namespace rf::native
