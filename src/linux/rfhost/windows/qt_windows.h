#pragma once

#include "host/host_windows.h"

#include <QPointer>
#include <functional>
#include <map>
#include <memory>

namespace rf::native {

class ExplorerWindow;
class HomePage;
class InspectorWindow;

/// The host's windows on a screen. While a window waits for a person, programs are served.
class QtWindows final : public host::HostWindows {
public:
    QtWindows() = default;
    QtWindows(const QtWindows&) = delete;
    QtWindows& operator=(const QtWindows&) = delete;
    ~QtWindows() override;

    /// What the root folder of the calendar product shows; it outlives the windows. Without one it is a folder as any.
    void setHomePage(HomePage* page) { homePage_ = page; }
    /// Who answers alerts and questions in the place of the person; it outlives this. The windows are shown all the
    /// same.
    void setAnswers(HostWindows* answers) { answers_ = answers; }
    /// Called when a person has closed the last window.
    void setLastClosed(std::function<void()> lastClosed) { lastClosed_ = std::move(lastClosed); }
    /// Takes all windows off the screen: the host ends.
    void clear();

    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override;
    std::optional<host::FolderId> pickFolder(const std::vector<host::FolderRecord>& folders) override;
    host::SaveAnswer askToSave(const Text& subject) override;

    void showExplorer(const std::shared_ptr<host::Explorer>& explorer) override;
    void explorerChanged(const host::Explorer& explorer) override;
    void explorerClosed(const host::Explorer& explorer) override;

    void showInspector(const std::shared_ptr<host::Inspector>& inspector) override;
    void inspectorChanged(const host::Inspector& inspector) override;
    void inspectorClosed(const host::Inspector& inspector) override;
    void itemChanged(const host::Item& item) override;

private:
    void tellWhenLast();

    HomePage* homePage_ = nullptr;
    HostWindows* answers_ = nullptr;
    std::function<void()> lastClosed_;
    /// Goes with this object.
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
    std::map<const host::Explorer*, QPointer<ExplorerWindow>> explorers_;
    std::map<const host::Inspector*, QPointer<InspectorWindow>> inspectors_;
};

} // namespace rf::native
