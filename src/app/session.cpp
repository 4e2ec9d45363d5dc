#include "app/session.h"

#include "app/attachment.h"
#include "app/root_explorer.h"
#include "app/shutdown.h"
#include "booking/app_items.h"
#include "booking/inspectors.h"
#include "storage/settings.h"

namespace rf {

Session::Session(const Services& platform)
    : services(platform)
    , reporter(trace, services.system, services.toolkit, *this)
    , language(trace, reporter, services.regional, services.system)
    , scripting(trace, services.classes, services.system, services.toolkit, reporter, *this)
    , files(trace, services.classes, services.system, services.toolkit, reporter, scripting)
    , alert(trace, services.toolkit, ouaApp)
{
}

Session::~Session() = default;

const Phrases& Session::phrasesAtAnyTime()
{
    if (language.colPhrases().count() == 0)
        language.loadQuietly();
    return language.phrases();
}

void Session::subReportAttach() { fncStartOutlook(*this, outlook::DefaultFolder::Inbox); }

void Session::endProgram() { subEndProgram(*this); }

} // namespace rf
