#include "host/restriction_operand.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

namespace rf::host {
namespace {

using Kind = RestrictionToken::Kind;

/// The text between the quotes, each doubled quote inside being one.
Text unquoted(const RestrictionToken& token)
{
    const char16_t quote = token.text.front();
    return replaceAll(token.text.substr(1, token.text.size() - 2), Text(2, quote), Text(1, quote));
}

/// A bare number is written alike in every country: it is part of a program, not of what a person typed.
std::optional<double> readBareNumber(TextView text)
{
    std::string narrow;
    for (const char16_t unit : text) {
        if (unit >= 0x80) {
            return std::nullopt;
        }
        narrow += static_cast<char>(unit);
    }
    double number = 0;
    const char* const end = narrow.data() + narrow.size();
    const auto [read, failure] = std::from_chars(narrow.data(), end, number);
    const bool whole = failure == std::errc{} && read == end;
    return whole && std::isfinite(number) ? std::optional{number} : std::nullopt;
}

Text readText(const RestrictionToken& token)
{
    if (token.kind != Kind::Quoted) {
        refuseRestriction(token.offset, u"a text in quotes was expected");
    }
    return unquoted(token);
}

double readNumber(const RestrictionToken& token, const Regional& regional)
{
    const auto number = token.kind == Kind::Quoted ? regional.parseNumber(unquoted(token)) : readBareNumber(token.text);
    if (!number) {
        refuseRestriction(token.offset, u"a number was expected");
    }
    return *number;
}

/// The date alone where it stands between # as Basic writes it.
TextView withoutHashes(TextView text)
{
    const TextView date = trim(text);
    const bool enclosed = date.size() >= 2 && date.front() == u'#' && date.back() == u'#';
    return enclosed ? date.substr(1, date.size() - 2) : date;
}

Minute readDate(const RestrictionToken& token, const Regional& regional)
{
    if (token.kind == Kind::Quoted) {
        const Text text = unquoted(token);
        if (const auto date = regional.parseDate(withoutHashes(text))) {
            return Minute{minuteOf(*date)};
        }
    }
    refuseRestriction(token.offset, u"a date in quotes was expected");
}

struct TruthWord {
    TextView word;
    bool value;
};

constexpr std::array truthWords{
    TruthWord{u"True", true},
    TruthWord{u"False", false},
    TruthWord{u"Yes", true},
    TruthWord{u"No", false},
    TruthWord{u"On", true},
    TruthWord{u"Off", false},
    TruthWord{u"-1", true},
    TruthWord{u"1", true},
    TruthWord{u"0", false},
};

// Outlook reads no word inside quotes here: any text but the empty one is true, even 'False'.
bool readTruth(const RestrictionToken& token)
{
    if (token.kind == Kind::Quoted) {
        return token.text.size() > 2;
    }
    for (const auto& [word, value] : truthWords) {
        if (token.isWord(word)) {
            return value;
        }
    }
    refuseRestriction(token.offset, u"True or False was expected");
}

} // namespace

Operand readOperand(FieldKind kind, const RestrictionToken& token, const Regional& regional)
{
    if (token.kind == Kind::Field) {
        refuseRestriction(token.offset, u"a value was expected, not another field");
    }
    if (token.kind != Kind::Quoted && token.kind != Kind::Bare) {
        refuseRestriction(token.offset, u"a value was expected");
    }
    switch (kind) {
    case FieldKind::Number:
        return readNumber(token, regional);
    case FieldKind::Date:
        return readDate(token, regional);
    case FieldKind::YesNo:
        return readTruth(token);
    default:
        return readText(token);
    }
}

} // namespace rf::host
