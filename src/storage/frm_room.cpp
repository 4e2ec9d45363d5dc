#include "storage/frm_room.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/webbrowser.h"

namespace rf {

namespace {

// The size, in twips, of a page that a person reads beside the calendar.
constexpr std::int32_t width = 9000;
constexpr std::int32_t height = 7200;

} // namespace

frmRoom::~frmRoom() = default;

void frmRoom::load()
{
    window_ = session_.services.toolkit.makeFormWindow();
    window_->setCaption(productCaption);
    window_->setSize(width, height);
    window_->QueryUnload = [this] {
        session_.forms.unload(*this);
        return true;
    };
    // Without a browser the window stays empty: there is no other way to show a page.
    ui::AutomationControl* wb = window_->addAutomationControl(outlook::webBrowserClass, u"wb");
    if (wb == nullptr)
        return;
    wb->setBounds({0, 0, width, height});
    PendingError errors;
    errors.attempt([&] { outlook::WebBrowser{wb->object()}.navigate2(strRoomPage_); });
}

void frmRoom::show()
{
    if (window_ != nullptr)
        window_->show();
}

void frmRoom::unload()
{
    if (window_ != nullptr)
        window_->close();
}

Text frmRoom::caption() const { return window_ == nullptr ? Text{} : window_->caption(); }

void frmRoom::setFocus()
{
    if (window_ != nullptr)
        window_->setFocus();
}

ui::WindowHandle frmRoom::window() const { return window_ == nullptr ? 0 : window_->handle(); }

} // namespace rf
