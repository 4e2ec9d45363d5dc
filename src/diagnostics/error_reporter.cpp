#include "diagnostics/error_reporter.h"

#include "diagnostics/operating_system.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/mail_item.h"
#include "program_version.h"

#include <algorithm>
#include <limits>

namespace rf {

namespace {

constexpr std::size_t ruleLength = 70;

Text versionText(const ProgramVersion& version)
{
    return decimal(version.major) + u"." + decimal(version.minor) + u"." + decimal(version.revision);
}

} // namespace

ErrorReporter::ErrorReporter(
    const Trace& trace, const System& system, ui::Toolkit& toolkit, ReportSurroundings& surroundings)
    : trace_(trace)
    , system_(system)
    , toolkit_(toolkit)
    , surroundings_(surroundings)
{
}

Text ErrorReporter::heading(const Phrases& phrases) const
{
    return phrases.LNGERRINAPP + u" " + Text{productCaption} + u" (" + fncGetOSName(system_.version()) + u")"
        + Text{lineBreak} + Text(ruleLength, u'-') + Text{lineBreak} + Text{lineBreak};
}

Text ErrorReporter::report(const Phrases& phrases, const Text& lastAction, const Text& description, std::int32_t number,
    std::int16_t line, const Text& procedure)
{
    const Text newLine{lineBreak};
    // The phrases end in a colon of their own in most languages. The literal one follows all the same: support reads
    // these reports by their fixed marks, whatever the language.
    return phrases.LNGERRTHISERROR + u" :" + newLine //
        + lastAction + newLine + newLine //
        + phrases.LNGERRSYSTEMERROR + u" :" + newLine //
        + description + newLine + u"#" + decimal(number) + newLine + newLine //
        + phrases.LNGSUBROUTINE + u" : " + procedure + u" " + newLine //
        + phrases.LNGERRLINE + u": " + decimal(line);
}

void ErrorReporter::subErrorHandler(
    const Text& description, std::int32_t number, std::int16_t line, const Text& procedure)
{
    if (blnErrorShown_)
        surroundings_.subReportEnd();

    // Reading the phrases may announce a step of its own; the report is about the one before.
    const Text lastAction = trace_.fncLastAction();
    const Phrases& phrases = surroundings_.fncReportPhrases();
    strErrorReport_ = report(phrases, lastAction, description, number, line, procedure);
    const Text message
        = heading(phrases) + strErrorReport_ + Text{lineBreak} + Text{lineBreak} + phrases.LNGERRSENDREPORT + u"?";
    blnErrorShown_ = true;

    PendingError errors;
    const auto answer = errors.attempt([&] {
        return toolkit_.showMessage(message, {ui::Buttons::YesNo, ui::Icon::None}, productCaption);
    });
    if (answer == ui::Answer::Yes) {
        if (!surroundings_.fncReportOutlook())
            errors.attempt([&] { surroundings_.subReportAttach(); });
        errors.attempt([&] {
            strErrorReport_ += Text{lineBreak} + u"Outlook Version: " + surroundings_.fncReportOutlook().version()
                + Text{lineBreak};
        });
        subSendErrorReport();
    }
    surroundings_.subReportEnd();
}

void ErrorReporter::subErrorHandler(const RuntimeError& error, TextView procedure)
{
    constexpr std::uint_least32_t highestLine = std::numeric_limits<std::int16_t>::max();
    const auto line = static_cast<std::int16_t>(std::min(error.where().line(), highestLine));
    subErrorHandler(error.description(), error.number(), line, Text{procedure});
}

void ErrorReporter::subSendErrorReport()
{
    PendingError errors;
    auto mail = errors.attempt(
        [&] { return surroundings_.fncReportOutlook().createItem(outlook::ItemType::Mail).as<outlook::MailItem>(); });
    errors.attempt([&] { mail.setTo(supportAddress); });
    errors.attempt([&] {
        mail.setSubject(u"Error in " + Text{productCaption} + u" " + versionText(system_.programVersion()) + u" ("
            + fncGetOSName(system_.version()) + u")");
    });
    errors.attempt([&] { mail.setBody(strErrorReport_); });
    errors.attempt([&] { mail.save(); });
    errors.attempt([&] { mail.display(); });
    // A mail that could not be saved or shown has already told the user so, through the host; only what goes wrong
    // with letting go of it is worth a word of ours.
    errors.clear();
    errors.attempt([&] { mail = {}; });
    if (errors.pending())
        toolkit_.showMessage(
            u"Failed to send error email using MS Outlook!", {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
    surroundings_.subReportEnd();
}

} // namespace rf
