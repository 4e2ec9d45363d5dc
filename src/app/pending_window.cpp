#include "app/pending_window.h"

#include "app/attachment.h"
#include "app/session.h"
#include "booking/toolbar.h"
#include "diagnostics/pending_error.h"
#include "storage/settings.h"

namespace rf {

namespace {

/// Outlook 2000 shows an item only in front of the explorer that is active.
constexpr std::int16_t versionThatNeedsItsExplorer = 9;

/// An appointment that nobody has saved or typed anything into is smaller than this many bytes.
constexpr std::int32_t sizeOfATouchedItem = 72;

bool hasToolbar(const outlook::Inspector& inspector)
{
    PendingError errors;
    return static_cast<bool>(errors.attempt([&] { return findToolbar(inspector); }));
}

void showAnew(Session& session, const outlook::Inspector& inspector, PendingError& errors)
{
    if (fncOutlookVersion(session) == versionThatNeedsItsExplorer)
        errors.attempt([&] { session.ouaApp.activeExplorer().activate(); });
    errors.attempt([&] { inspector.currentItem().display(); });
    errors.attempt([&] { inspector.activate(); });
}

void giveTemplate(const Session& session, const outlook::Inspector& inspector)
{
    if (!session.objSettings || session.objSettings->NewItemTemplate.empty())
        return;
    PendingError errors;
    errors.attempt([&] {
        const auto item = inspector.currentItem();
        if (item.size() < sizeOfATouchedItem)
            item.setBody(session.objSettings->NewItemTemplate);
    });
}

} // namespace

bool fncFinishWindow(Session& session, const outlook::Inspector& inspector)
{
    if (!hasToolbar(inspector)) {
        PendingError errors;
        showAnew(session, inspector, errors);
        if (errors.pending())
            return false;
        // A window that has its bar by now is done with, and would not be looked at again.
        if (!hasToolbar(inspector))
            return true;
    }
    giveTemplate(session, inspector);
    return true;
}

} // namespace rf
