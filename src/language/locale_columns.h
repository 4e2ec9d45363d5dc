#pragma once

#include <array>
#include <cstdint>

namespace rf {

/// The columns of the phrase table, by their place in it.
enum class LanguageColumn : std::int16_t {
    Czech = 1,
    Danish,
    Dutch,
    English,
    Finnish,
    French,
    German,
    Greek,
    Italian,
    Norwegian,
    Portuguese,
    Slovenian,
    Spanish,
    Swedish,
    Turkish,
    Russian,
};

struct LocaleColumn {
    std::uint32_t localeId;
    LanguageColumn column;
};

/// The locales whose users get a language other than English. Installations rely on this very list: 3082 (Spanish,
/// modern sort), 1046 (Portuguese, Brazil) and 2068 (Norwegian Nynorsk) get English, and so does Russia.
inline constexpr std::array localeColumns{
    LocaleColumn{1029, LanguageColumn::Czech},
    LocaleColumn{1030, LanguageColumn::Danish},
    LocaleColumn{1043, LanguageColumn::Dutch},
    LocaleColumn{2067, LanguageColumn::Dutch},
    LocaleColumn{1035, LanguageColumn::Finnish},
    LocaleColumn{1036, LanguageColumn::French},
    LocaleColumn{2060, LanguageColumn::French},
    LocaleColumn{3084, LanguageColumn::French},
    LocaleColumn{5132, LanguageColumn::French},
    LocaleColumn{4108, LanguageColumn::French},
    LocaleColumn{1031, LanguageColumn::German},
    LocaleColumn{3079, LanguageColumn::German},
    LocaleColumn{5127, LanguageColumn::German},
    LocaleColumn{4103, LanguageColumn::German},
    LocaleColumn{2055, LanguageColumn::German},
    LocaleColumn{1032, LanguageColumn::Greek},
    LocaleColumn{1040, LanguageColumn::Italian},
    LocaleColumn{2064, LanguageColumn::Italian},
    LocaleColumn{1044, LanguageColumn::Norwegian},
    LocaleColumn{2070, LanguageColumn::Portuguese},
    LocaleColumn{1060, LanguageColumn::Slovenian},
    LocaleColumn{1034, LanguageColumn::Spanish},
    LocaleColumn{11274, LanguageColumn::Spanish},
    LocaleColumn{16394, LanguageColumn::Spanish},
    LocaleColumn{13322, LanguageColumn::Spanish},
    LocaleColumn{9226, LanguageColumn::Spanish},
    LocaleColumn{5130, LanguageColumn::Spanish},
    LocaleColumn{7178, LanguageColumn::Spanish},
    LocaleColumn{12298, LanguageColumn::Spanish},
    LocaleColumn{4106, LanguageColumn::Spanish},
    LocaleColumn{18442, LanguageColumn::Spanish},
    LocaleColumn{2058, LanguageColumn::Spanish},
    LocaleColumn{19466, LanguageColumn::Spanish},
    LocaleColumn{6154, LanguageColumn::Spanish},
    LocaleColumn{10250, LanguageColumn::Spanish},
    LocaleColumn{20490, LanguageColumn::Spanish},
    LocaleColumn{15370, LanguageColumn::Spanish},
    LocaleColumn{17418, LanguageColumn::Spanish},
    LocaleColumn{14346, LanguageColumn::Spanish},
    LocaleColumn{8202, LanguageColumn::Spanish},
    LocaleColumn{1053, LanguageColumn::Swedish},
    LocaleColumn{1055, LanguageColumn::Turkish},
};

} // namespace rf
