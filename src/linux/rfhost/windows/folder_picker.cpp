#include "linux/rfhost/windows/folder_picker.h"

#include "linux/rfhost/windows/folder_tree.h"
#include "linux/rfhost/windows/person.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace rf::native {

std::optional<host::FolderId> askForFolder(const std::vector<host::FolderRecord>& folders)
{
    constexpr QSize usualSize{420, 460};
    // The window in front may close meanwhile, and the dialog with it.
    const QPointer dialog{new QDialog{windowInFront()}};
    dialog->setObjectName(QStringLiteral("folderPicker"));
    dialog->setWindowTitle(QStringLiteral("Select Folder"));
    auto* const layout = new QVBoxLayout{dialog};
    auto* const label = new QLabel{QStringLiteral("&Folders:")};
    auto* const tree = new FolderTree;
    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
    label->setBuddy(tree);
    layout->addWidget(label);
    layout->addWidget(tree);
    layout->addWidget(buttons);
    auto* const ok = buttons->button(QDialogButtonBox::Ok);
    ok->setEnabled(false);
    tree->show(folders);
    tree->folderChosen = [ok](host::FolderId) { ok->setEnabled(true); };
    QObject::connect(tree, &QTreeWidget::itemDoubleClicked, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    dialog->resize(usualSize);
    tree->setFocus();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog == nullptr)
        return std::nullopt;
    dialog->deleteLater();
    const host::FolderId chosen = tree->chosen();
    return accepted && chosen != host::FolderId::None ? std::optional{chosen} : std::nullopt;
}

} // namespace rf::native
