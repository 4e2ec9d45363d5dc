#pragma once

#include "host/records.h"

#include <QTreeWidget>
#include <functional>
#include <map>
#include <vector>

namespace rf::native {

/// The folders of all message stores as a tree. It keeps what is closed and chosen when the folders change.
class FolderTree final : public QTreeWidget {
public:
    explicit FolderTree(QWidget* parent = nullptr);

    void show(const std::vector<host::FolderRecord>& folders);
    [[nodiscard]] host::FolderId chosen() const;
    /// Shows a folder as the chosen one, without a word to anybody.
    void choose(host::FolderId folder);
    /// A person has chosen a folder.
    std::function<void(host::FolderId folder)> folderChosen;

private:
    std::vector<host::FolderRecord> shown_;
    std::map<host::FolderId, QTreeWidgetItem*> items_;
};

} // namespace rf::native
