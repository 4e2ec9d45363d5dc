#include "app/user_name.h"

#include "app/attachment.h"
#include "app/session.h"
#include "app/shutdown.h"
#include "diagnostics/pending_error.h"
#include "outlook/folder.h"

namespace rf {

namespace {

constexpr TextView ownerMark = u" - ";

} // namespace

void subGetSafeMailboxName(Session& session)
{
    if (!session.ouaApp)
        fncStartOutlook(session, outlook::DefaultFolder::Inbox);
    if (!session.ouaApp)
        subEndProgram(session);
    session.trace.subTrace(u"Getting current user full name from mailbox name");
    PendingError errors;
    const Text mailbox = errors.attempt([&] {
        return session.ouaApp.getNamespace().getDefaultFolder(outlook::DefaultFolder::Calendar).parent().name();
    });
    if (const auto mark = mailbox.find(ownerMark); mark != Text::npos)
        session.strUserName = trim(TextView{mailbox}.substr(mark + ownerMark.size()));
    else if (mailbox.find(u',') != Text::npos)
        session.strUserName = mailbox;
}

void subGetUserNameFromEnvironment(Session& session)
{
    PendingError errors;
    const auto shell = session.scripting.fncGetShell();
    session.strUserName = errors.attempt([&] { return shell.expandEnvironmentStrings(u"%USERNAME%"); });
}

Text fncGetUserName(Session& session)
{
    if (session.strUserName.empty())
        subGetSafeMailboxName(session);
    if (session.strUserName.empty())
        subGetUserNameFromEnvironment(session);
    return session.strUserName;
}

} // namespace rf
