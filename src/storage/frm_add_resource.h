#pragma once

#include "ui/form.h"
#include "ui/form_window.h"

#include <memory>

namespace rf {

class Session;

/// Adds a resource to the installation: a calendar in the root folder or a mailbox. It closes once the resource is
/// added, and stays for another try otherwise.
class frmAddResource final : public ui::Form {
public:
    static constexpr TextView formName = u"frmAddResource";

    explicit frmAddResource(Session& session)
        : session_(session)
    {
    }
    frmAddResource(const frmAddResource&) = delete;
    frmAddResource& operator=(const frmAddResource&) = delete;
    ~frmAddResource() override;

    [[nodiscard]] TextView name() const override { return formName; }
    void load() override;
    void show() override;
    void unload() override;
    [[nodiscard]] Text caption() const override;
    void setFocus() override;
    [[nodiscard]] ui::WindowHandle window() const override;
    /// Shows the form and waits until it is closed.
    void showModal();

private:
    void addControls();
    void subSetCaptions();
    void cmdOK_Click();
    void cmdCancel_Click();

    Session& session_;
    std::unique_ptr<ui::FormWindow> window_;
    // The window's.
    ui::Label* lblResourceName_ = nullptr;
    ui::TextBox* txtResourceName_ = nullptr;
    ui::OptionButton* optPublicFolder_ = nullptr;
    ui::OptionButton* optMailbox_ = nullptr;
    ui::Button* cmdOK_ = nullptr;
    ui::Button* cmdCancel_ = nullptr;
};

/// Shows the dialog and waits until it is closed. No error leaves it.
void subShowAddResource(Session& session);

} // namespace rf
