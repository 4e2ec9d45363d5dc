#include "app/preloading.h"

#include "app/session.h"
#include "basic/conversion.h"
#include "storage/frm_room.h"

namespace rf {

namespace {

/// Answers whether there is a page to show. The number tells nothing more, but a command line without one is not
/// meant for this program.
bool takeCommandLine(Session& session)
{
    const Text commandLine{trim(session.services.system.commandLine())};
    if (commandLine.empty())
        return false;
    const auto blank = commandLine.find(u' ');
    static_cast<void>(toInteger(session.services.regional, TextView{commandLine}.substr(0, blank)));
    if (blank == Text::npos)
        return false;
    session.strRoomPage = commandLine.substr(blank + 1);
    return true;
}

} // namespace

void subPreLoadingLanguage(Session& session)
{
    const bool showRoom = takeCommandLine(session);
    session.language.LoadLanguages(session.language.fncGetlocalLanguage());
    if (!showRoom)
        return;
    const auto room = std::make_shared<frmRoom>(session, session.strRoomPage);
    session.forms.load(room);
    room->show();
}

} // namespace rf
