#include "storage/frm_add_resource.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "storage/resource_addition.h"

namespace rf {

namespace {

// In twips.
constexpr std::int32_t width = 5400;
constexpr std::int32_t height = 2340;
constexpr std::int32_t left = 180;
constexpr std::int32_t innerWidth = width - 2 * left;
constexpr std::int32_t buttonWidth = 1350;
constexpr std::int32_t buttonTop = 1770;
constexpr ui::Bounds labelPlace{left, 150, innerWidth, 255};
constexpr ui::Bounds namePlace{left, 420, innerWidth, 345};
constexpr ui::Bounds publicFolderPlace{left, 930, innerWidth, 285};
constexpr ui::Bounds mailboxPlace{left, 1260, innerWidth, 285};
constexpr ui::Bounds okPlace{width - left - 2 * buttonWidth - 120, buttonTop, buttonWidth, 390};
constexpr ui::Bounds cancelPlace{width - left - buttonWidth, buttonTop, buttonWidth, 390};

} // namespace

frmAddResource::~frmAddResource() = default;

void frmAddResource::load()
{
    window_ = session_.services.toolkit.makeFormWindow();
    window_->setSize(width, height);
    addControls();
    subSetCaptions();
    optPublicFolder_->setValue(true);
    cmdOK_->Click = [this] { cmdOK_Click(); };
    cmdCancel_->Click = [this] { cmdCancel_Click(); };
    window_->QueryUnload = [this] {
        session_.forms.unload(*this);
        return true;
    };
}

void frmAddResource::addControls()
{
    lblResourceName_ = &window_->addLabel(u"lblResourceName", labelPlace);
    txtResourceName_ = &window_->addTextBox(u"txtResourceName", namePlace);
    optPublicFolder_ = &window_->addOptionButton(u"optPublicFolder", publicFolderPlace);
    optMailbox_ = &window_->addOptionButton(u"optMailbox", mailboxPlace);
    cmdOK_ = &window_->addButton(u"cmdOK", okPlace, ui::ButtonRole::Default);
    cmdCancel_ = &window_->addButton(u"cmdCancel", cancelPlace, ui::ButtonRole::Cancel);
}

void frmAddResource::subSetCaptions()
{
    const Phrases& phrases = session_.language.phrases();
    window_->setCaption(phrases.LNGADDCALENDAR);
    lblResourceName_->setCaption(phrases.LNGINPUTNAME);
    optPublicFolder_->setCaption(phrases.LNGPUBLICFOLDER);
    optMailbox_->setCaption(phrases.LNGDIRECTMAILBOX);
    cmdOK_->setCaption(phrases.LNGOK);
    cmdCancel_->setCaption(phrases.LNGCANCEL);
}

void frmAddResource::cmdOK_Click()
{
    session_.reporter.handled(u"frmAddResource.cmdOK_Click", [&] {
        const auto place = optMailbox_->value() ? ResourcePlace::Mailbox : ResourcePlace::PublicFolder;
        if (subAddResource(session_, txtResourceName_->text(), place))
            session_.forms.unload(*this);
    });
}

void frmAddResource::cmdCancel_Click() { session_.forms.unload(*this); }

void frmAddResource::show()
{
    if (window_ != nullptr)
        window_->show();
}

void frmAddResource::showModal()
{
    if (window_ != nullptr)
        window_->showModal();
}

void frmAddResource::unload()
{
    if (window_ != nullptr)
        window_->close();
}

Text frmAddResource::caption() const { return window_ == nullptr ? Text{} : window_->caption(); }

void frmAddResource::setFocus()
{
    if (window_ != nullptr)
        window_->setFocus();
}

ui::WindowHandle frmAddResource::window() const { return window_ == nullptr ? 0 : window_->handle(); }

void subShowAddResource(Session& session)
{
    PendingError errors;
    const auto form = std::make_shared<frmAddResource>(session);
    errors.attempt([&] { session.forms.load(form); });
    errors.attempt([&] { form->showModal(); });
    errors.attempt([&] { session.forms.unload(*form); });
}

} // namespace rf
