#pragma once

#include "ui/form.h"
#include "ui/form_window.h"

#include <memory>

namespace rf {

class Session;

/// Shows the description of a resource, a page on this machine. Nothing is loaded from elsewhere.
class frmRoom final : public ui::Form {
public:
    static constexpr TextView formName = u"frmRoom";

    frmRoom(Session& session, Text page)
        : session_(session)
        , strRoomPage_(std::move(page))
    {
    }
    frmRoom(const frmRoom&) = delete;
    frmRoom& operator=(const frmRoom&) = delete;
    ~frmRoom() override;

    [[nodiscard]] TextView name() const override { return formName; }
    void load() override;
    void show() override;
    void unload() override;
    [[nodiscard]] Text caption() const override;
    void setFocus() override;
    [[nodiscard]] ui::WindowHandle window() const override;
    /// The path of the page that it shows.
    [[nodiscard]] const Text& strRoomPage() const { return strRoomPage_; }

private:
    Session& session_;
    Text strRoomPage_;
    std::unique_ptr<ui::FormWindow> window_;
};

} // namespace rf
