#pragma once

#include "basic/regional.h"
#include "basic/system.h"
#include "diagnostics/error_reporter.h"
#include "diagnostics/trace.h"
#include "language/phrase_table.h"
#include "language/phrases.h"

#include <cstdint>

namespace rf {

/// The language column that belongs to a system's default locale id; English for a locale that is not in the list.
[[nodiscard]] std::int16_t fncLanguageOfLocale(std::uint32_t localeId);

/// Loads the phrase table out of the program's resource and fills the phrase variables.
class Language {
public:
    Language(Trace& trace, ErrorReporter& reporter, const Regional& regional, const System& system);

    /// The language column for the system's default locale.
    [[nodiscard]] std::int16_t fncGetlocalLanguage() const;

    /// Loads the resource into `colPhrases`, replacing what it held. `ansi` means that the resource is text in the
    /// system code page; the one that is delivered is UTF-16. A failure is reported and ends the program.
    void subReadPhrases(std::int16_t language, bool ansi);

    /// Loads the table and fills every phrase variable from it. A failure, a key that the table lacks included, is
    /// reported and ends the program.
    void LoadLanguages(std::int16_t language);

    /// Fills what can be filled and reports nothing: for a procedure that has to tell the user something before the
    /// start has come to the language.
    void loadQuietly();

    [[nodiscard]] const Phrases& phrases() const { return phrases_; }
    [[nodiscard]] const PhraseTable& colPhrases() const { return colPhrases_; }

private:
    void readPhrases(std::int16_t language, bool ansi);
    void fillVariables();

    Trace& trace_;
    ErrorReporter& reporter_;
    const Regional& regional_;
    const System& system_;
    PhraseTable colPhrases_;
    Phrases phrases_;
};

} // namespace rf
