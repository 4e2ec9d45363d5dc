#include "storage/long_property.h"

#include "app/session.h"
#include "basic/conversion.h"
#include "diagnostics/pending_error.h"
#include "storage/outlook_value.h"

#include <algorithm>

namespace rf {

namespace {

constexpr std::size_t pieceLength = 1000;

Text pieceName(TextView name, std::int32_t index) { return Text{name} + decimal(index); }
Text countName(TextView name) { return Text{name} + u"Count"; }

/// Rounded, not rounded up: a text of 1000 units has an empty second piece, and one of 2500 still ends in its third.
/// Other installations count the same way.
std::int32_t highestIndex(TextView text)
{
    return static_cast<std::int32_t>(divideHalfToEven(static_cast<std::int64_t>(text.size()), pieceLength));
}

/// Empty behind the end. A border may split a surrogate pair; the reader puts it together again.
TextView piece(TextView text, std::int32_t index)
{
    return text.substr(std::min(static_cast<std::size_t>(index) * pieceLength, text.size()), pieceLength);
}

void write(const outlook::Item& item, TextView text, TextView name)
{
    const auto properties = item.userProperties();
    const std::int32_t last = highestIndex(text);
    for (std::int32_t index = 0; index <= last; ++index)
        properties.add(pieceName(name, index), outlook::UserPropertyType::Text).setValue(piece(text, index));
    properties.add(countName(name), outlook::UserPropertyType::Number).setValue(last);
}

} // namespace

void subFixLongProperty(Session& session, const outlook::Item& item, TextView text, TextView name)
{
    session.trace.subTrace(u"Entering subFixLongProperty to save " + Text{name});
    session.reporter.handled(u"modOutlookCode.subFixLongProperty", [&] {
        try {
            write(item, text, name);
        } catch (const RuntimeError&) {
            // The report names the last step, which is to be the text as a whole.
            session.trace.subTrace(u"Failed to save " + Text{name});
            throw;
        }
    });
}

Text fncGetLongProperty(Session& session, const outlook::Item& item, TextView name)
{
    session.trace.subTrace(u"Entering fncGetLongProperty");
    const auto count = fncGetOutlookValue(session, item, countName(name), ValueKind::Integer, u"");
    // A count beyond 16 bits is a damaged one.
    PendingError errors;
    const std::int16_t last = errors.attempt([&] { return count.integer16(); });
    Text text;
    for (std::int32_t index = 0; index <= last; ++index)
        text += fncGetOutlookValue(session, item, pieceName(name, index), ValueKind::String, u"").text();
    return text;
}

} // namespace rf
