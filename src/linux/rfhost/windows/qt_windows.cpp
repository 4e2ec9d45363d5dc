#include "linux/rfhost/windows/qt_windows.h"

#include "host/item.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/alert_box.h"
#include "linux/rfhost/windows/explorer_window.h"
#include "linux/rfhost/windows/folder_picker.h"
#include "linux/rfhost/windows/inspector_window.h"
#include "linux/rfhost/windows/person.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QTimer>
#include <utility>

namespace rf::native {

namespace {

/// The window of an object; null when it has none.
template <class Windows, class Object>
auto* windowOf(const Windows& windows, const Object& object)
{
    const auto found = windows.find(&object);
    return found == windows.end() ? nullptr : found->second.data();
}

template <class Windows>
void removeAll(Windows& windows)
{
    for (const auto& [object, window] : std::exchange(windows, {}))
        delete window.data();
}

} // namespace

QtWindows::~QtWindows() { clear(); }

void QtWindows::clear()
{
    removeAll(inspectors_);
    removeAll(explorers_);
    // Windows that went during their own events.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::int32_t QtWindows::alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon)
{
    if (answers_ != nullptr)
        return answers_->alert(title, message, buttons, icon);
    return showAlert(title, message, buttons, icon);
}

std::optional<host::FolderId> QtWindows::pickFolder(const std::vector<host::FolderRecord>& folders)
{
    return answers_ != nullptr ? answers_->pickFolder(folders) : askForFolder(folders);
}

host::SaveAnswer QtWindows::askToSave(const Text& subject)
{
    if (answers_ != nullptr)
        return answers_->askToSave(subject);
    const QString name = subject.empty() ? QStringLiteral("this item") : QStringLiteral("“%1”").arg(qtText(subject));
    // The window in front may close meanwhile, and the box with it.
    const QPointer box{new QMessageBox{QMessageBox::Question, QStringLiteral("Outlook"),
        QStringLiteral("Do you want to save the changes to %1?").arg(name),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, windowInFront()}};
    box->setObjectName(QStringLiteral("askToSave"));
    box->setTextFormat(Qt::PlainText);
    const int answer = box->exec();
    if (box != nullptr)
        box->deleteLater();
    if (answer == QMessageBox::Yes)
        return host::SaveAnswer::Save;
    return answer == QMessageBox::No ? host::SaveAnswer::Discard : host::SaveAnswer::KeepOpen;
}

void QtWindows::showExplorer(const std::shared_ptr<host::Explorer>& explorer)
{
    auto& window = explorers_[explorer.get()];
    if (window == nullptr)
        window = new ExplorerWindow{explorer, homePage_};
    window->present();
}

void QtWindows::explorerChanged(const host::Explorer& explorer)
{
    if (auto* const window = windowOf(explorers_, explorer))
        window->tell();
}

void QtWindows::explorerClosed(const host::Explorer& explorer)
{
    const auto entry = explorers_.extract(&explorer);
    if (!entry.empty() && entry.mapped() != nullptr)
        entry.mapped()->letGo();
    tellWhenLast();
}

void QtWindows::showInspector(const std::shared_ptr<host::Inspector>& inspector)
{
    auto& window = inspectors_[inspector.get()];
    if (window == nullptr)
        window = new InspectorWindow{inspector};
    window->present();
}

void QtWindows::inspectorChanged(const host::Inspector& inspector)
{
    if (auto* const window = windowOf(inspectors_, inspector))
        window->tell();
}

void QtWindows::inspectorClosed(const host::Inspector& inspector)
{
    const auto entry = inspectors_.extract(&inspector);
    if (!entry.empty() && entry.mapped() != nullptr)
        entry.mapped()->letGo();
    tellWhenLast();
}

void QtWindows::itemChanged(const host::Item& item)
{
    for (const auto& [inspector, window] : inspectors_)
        if (window != nullptr && &inspector->item() == &item)
            window->tell();
}

void QtWindows::tellWhenLast()
{
    // Whoever closed it still has something to say to its object.
    QTimer::singleShot(0, QCoreApplication::instance(), [this, alive = std::weak_ptr{alive_}] {
        if (!alive.expired() && explorers_.empty() && inspectors_.empty() && lastClosed_)
            lastClosed_();
    });
}

} // namespace rf::native
