#include "storage/resource_description.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "storage/long_property.h"
#include "storage/outlook_value.h"

namespace rf {

namespace {

namespace key {
constexpr TextView description = u"strHTMLDesc";
constexpr TextView seats = u"intSeats";
constexpr TextView rate = u"curRate2";
} // namespace key

Text subjectIs(TextView name) { return u"[Subject] = '" + replaceAll(name, u"'", u"''") + u"'"; }

/// Of posts of one subject the oldest, which is the first, stays: two users may have made one at the same time.
/// A user without the right to delete goes on with the oldest all the same.
outlook::Item oldest(const outlook::Items& sameSubject, std::int32_t count)
{
    auto first = sameSubject.item(1);
    PendingError errors;
    for (std::int32_t position = count; position > 1; --position)
        errors.attempt([&] { sameSubject.item(position).remove(); });
    return first;
}

} // namespace

void cResourceDescription::setResourceName(TextView name)
{
    resourceName_ = name;
    session_.trace.subTrace(u"Getting description for calendar " + resourceName_);
    session_.reporter.handled(u"cResourceDescription.ResourceName", [&] { load(); });
}

void cResourceDescription::load()
{
    const auto item = descriptionItem();
    resourceDescHtml_ = fncGetLongProperty(session_, item, key::description);
    PendingError errors;
    intSeats = errors.attempt(
        [&] { return fncGetOutlookValue(session_, item, key::seats, ValueKind::Integer, u"").integer16(); });
    curRate = errors.attempt(
        [&] { return fncGetOutlookValue(session_, item, key::rate, ValueKind::Integer, u"").currency(); });
}

void cResourceDescription::SaveResourceDesc()
{
    PendingError errors;
    errors.attempt([&] {
        const auto item = descriptionItem();
        if (!item)
            return;
        subFixLongProperty(session_, item, resourceDescHtml_, key::description);
        subSetOutlookValue(session_, item, key::seats, intSeats, ValueKind::Integer, false);
        // As a number, which keeps its decimals: a text would be read differently under other regional settings.
        subSetOutlookValue(session_, item, key::rate, curRate, ValueKind::Integer, false);
        item.save();
    });
    if (errors.pending())
        tellFailure(errors.description());
}

outlook::Item cResourceDescription::descriptionItem() const
{
    const auto items = session_.objRootFolder.items();
    items.sort(outlook::field::creationTime);
    const auto sameSubject = items.restrict(subjectIs(resourceName_));
    const std::int32_t count = sameSubject.count();
    return count == 0 ? newDescriptionItem() : oldest(sameSubject, count);
}

outlook::Item cResourceDescription::newDescriptionItem() const
{
    PendingError errors;
    auto item = errors.attempt([&] {
        auto post = session_.objRootFolder.items().add(outlook::message_class::post);
        post.setSubject(resourceName_);
        post.save();
        return post;
    });
    if (errors.pending())
        tellFailure(errors.description());
    return item;
}

void cResourceDescription::tellFailure(const Text& reason) const
{
    const Phrases& phrases = session_.phrasesAtAnyTime();
    session_.services.toolkit.showMessage(
        phrases.LNGFAILEDSAVEINFO + Text{lineBreak} + phrases.LNGCHECKPERM + Text{lineBreak} + reason,
        {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
}

outlook::Folder cResourceDescription::fncGetOutlookFolder() const
{
    if (blnMailbox)
        return mailboxCalendar();
    session_.trace.subTrace(u"Opening the Outlook public subfolder " + resourceName_);
    return session_.reporter.handled(u"cResourceDescription.fncGetOutlookFolder",
        [&] { return session_.objRootFolder.folders().item(resourceName_); });
}

outlook::Folder cResourceDescription::mailboxCalendar() const
{
    session_.trace.subTrace(u"Opening the Outlook calendar for the mailbox " + resourceName_);
    PendingError errors;
    auto folder = errors.attempt([&] {
        const auto mapi = session_.ouaApp.getNamespace();
        const auto person = mapi.createRecipient(resourceName_);
        person.resolve();
        return mapi.getSharedDefaultFolder(person, outlook::DefaultFolder::Calendar);
    });
    if (!folder) {
        const Phrases& phrases = session_.phrasesAtAnyTime();
        session_.alert.fncDoAlert(
            phrases.LNGCHECKPERM + resourceName_ + u" " + phrases.LNGUNABLEOPENMAILBOX + Text{lineBreak},
            ui::Buttons::Ok, ui::Icon::Warning);
    }
    return folder;
}

} // namespace rf
