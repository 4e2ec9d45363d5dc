#include "language/language.h"

#include "diagnostics/pending_error.h"
#include "language/locale_columns.h"

#include <algorithm>

namespace rf {

namespace {

constexpr TextView resourceType = u"CUSTOM";
constexpr TextView resourceName = u"LANGUAGE";

Text fromUtf16LittleEndian(std::string_view bytes)
{
    Text text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = static_cast<char16_t>(low | high << 8);
    }
    return text;
}

} // namespace

std::int16_t fncLanguageOfLocale(std::uint32_t localeId)
{
    const auto found = std::ranges::find(localeColumns, localeId, &LocaleColumn::localeId);
    return static_cast<std::int16_t>(found == localeColumns.end() ? LanguageColumn::English : found->column);
}

Language::Language(Trace& trace, ErrorReporter& reporter, const Regional& regional, const System& system)
    : trace_(trace)
    , reporter_(reporter)
    , regional_(regional)
    , system_(system)
{
}

std::int16_t Language::fncGetlocalLanguage() const { return fncLanguageOfLocale(regional_.systemLocaleId()); }

void Language::readPhrases(std::int16_t language, bool ansi)
{
    trace_.subTrace(u"Reading language phrases from resource file");
    const std::string_view bytes = system_.resource(resourceType, resourceName);
    if (bytes.empty())
        throw RuntimeError{error_number::resourceNotFound};
    const Text text = ansi ? regional_.fromSystemCodePage(bytes) : fromUtf16LittleEndian(bytes);
    colPhrases_ = parsePhraseTable(regional_, text, language);
}

void Language::fillVariables()
{
    trace_.subTrace(u"Reading phrases from collection into variables");
    for (const PhraseKey& entry : phraseKeys)
        phrases_.*entry.variable = colPhrases_(entry.key).LangPhrase;
}

void Language::subReadPhrases(std::int16_t language, bool ansi)
{
    reporter_.handled(u"subReadPhrases", [&] { readPhrases(language, ansi); });
}

void Language::LoadLanguages(std::int16_t language)
{
    subReadPhrases(language, false);
    reporter_.handled(u"LoadLanguages", [&] { fillVariables(); });
}

void Language::loadQuietly()
{
    PendingError errors;
    errors.attempt([&] { readPhrases(fncGetlocalLanguage(), false); });
    errors.attempt([&] { fillVariables(); });
}

} // namespace rf
