#pragma once

#include "language/locale_columns.h"
#include "language/phrases.h"
#include "support/native.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>
#include <string_view>
#include <vector>

namespace rf::test {

/// What a phrase of a language may be written with, besides digits and the marks that all of them share.
struct PhraseLanguage {
    LanguageColumn column;
    std::string_view name;
    /// Small and capital letters. Letters that only names of products bring into the language are left out.
    TextView letters;
    TextView marks;
};

inline constexpr std::array phraseLanguages{
    PhraseLanguage{LanguageColumn::Czech, "Czech",
        u"abcdefghijklmnopqrstuvwxyzáčďéěíňóřšťúůýžABCDEFGHIJKLMNOPQRSTUVWXYZÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ", u"?"},
    PhraseLanguage{
        LanguageColumn::Danish, "Danish", u"abcdefghijklmnopqrstuvwxyzæøåéABCDEFGHIJKLMNOPQRSTUVWXYZÆØÅÉ", u"?"},
    PhraseLanguage{LanguageColumn::Dutch, "Dutch",
        u"abcdefghijklmnopqrstuvwxyzáéëèïíóöüABCDEFGHIJKLMNOPQRSTUVWXYZÁÉËÈÏÍÓÖÜ", u"?’"},
    PhraseLanguage{LanguageColumn::English, "English", u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", u"?#'"},
    PhraseLanguage{
        LanguageColumn::Finnish, "Finnish", u"abcdefghijklmnopqrstuvwxyzåäöšžABCDEFGHIJKLMNOPQRSTUVWXYZÅÄÖŠŽ", u"?"},
    PhraseLanguage{LanguageColumn::French, "French",
        u"abcdefghijklmnopqrstuvwxyzàâæçéèêëîïôœùûüÿABCDEFGHIJKLMNOPQRSTUVWXYZÀÂÆÇÉÈÊËÎÏÔŒÙÛÜŸ", u"?’\u00A0"},
    PhraseLanguage{
        LanguageColumn::German, "German", u"abcdefghijklmnopqrstuvwxyzäöüßABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜ", u"?"},
    PhraseLanguage{
        LanguageColumn::Greek, "Greek", u"αβγδεζηθικλμνξοπρσςτυφχψωάέήίόύώϊϋΐΰΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΆΈΉΊΌΎΏΪΫ", u";"},
    // k and w are those of "OK" and "password".
    PhraseLanguage{
        LanguageColumn::Italian, "Italian", u"abcdefghiklmnopqrstuvwzàèéìíòóùúABCDEFGHIKLMNOPQRSTUVWZÀÈÉÌÍÒÓÙÚ", u"?’"},
    PhraseLanguage{LanguageColumn::Norwegian, "Norwegian",
        u"abcdefghijklmnopqrstuvwxyzæøåéóòôABCDEFGHIJKLMNOPQRSTUVWXYZÆØÅÉÓÒÔ", u"?"},
    PhraseLanguage{LanguageColumn::Portuguese, "Portuguese",
        u"abcdefghijklmnopqrstuvwxyzáâãàçéêíóôõúABCDEFGHIJKLMNOPQRSTUVWXYZÁÂÃÀÇÉÊÍÓÔÕÚ", u"?"},
    PhraseLanguage{LanguageColumn::Slovenian, "Slovenian", u"abcčdefghijklmnoprsštuvzžABCČDEFGHIJKLMNOPRSŠTUVZŽ", u"?"},
    PhraseLanguage{LanguageColumn::Spanish, "Spanish",
        u"abcdefghijklmnñopqrstuvwxyzáéíóúüABCDEFGHIJKLMNÑOPQRSTUVWXYZÁÉÍÓÚÜ", u"?¿¡"},
    PhraseLanguage{
        LanguageColumn::Swedish, "Swedish", u"abcdefghijklmnopqrstuvwxyzåäöéABCDEFGHIJKLMNOPQRSTUVWXYZÅÄÖÉ", u"?"},
    PhraseLanguage{
        LanguageColumn::Turkish, "Turkish", u"abcçdefgğhıijklmnoöprsştuüvyzâîûABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZÂÎÛ", u"?’"},
    PhraseLanguage{LanguageColumn::Russian, "Russian",
        u"абвгдеёжзийклмнопрстуфхцчшщъыьэюяАБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ", u"?"},
};

/// The cells of a line: a key and a phrase in each language.
inline constexpr std::size_t phraseCells = phraseLanguages.size() + 1;

/// A phrase of the table with what a failure has to name.
struct TablePhrase {
    Text key;
    LanguageColumn language;
    Text text;
    Text english;
};

inline std::ostream& operator<<(std::ostream& out, const TablePhrase& phrase)
{
    return out << toUtf8(phrase.key) << ", " << phraseLanguages.at(static_cast<std::size_t>(phrase.language) - 1).name
               << ": \"" << toUtf8(phrase.text) << '"';
}

/// The phrase table that is built into the program.
class PhraseResourceTest : public ::testing::Test {
protected:
    PhraseResourceTest()
    {
        const std::string_view bytes = builtInLanguageTable();
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            text += static_cast<char16_t>(
                static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
        for (const Text& line : split(TextView{text}.substr(1), lineBreak))
            lines.push_back(split(line, u"\t"));
        remainder = lines.back();
        lines.pop_back();
    }

    /// Every phrase that is there, in every language. Cells that are empty are left out.
    [[nodiscard]] std::vector<TablePhrase> phrases() const
    {
        std::vector<TablePhrase> found;
        for (const auto& cells : lines)
            for (const PhraseLanguage& language : phraseLanguages)
                if (const Text& phrase = cells.at(static_cast<std::size_t>(language.column)); !phrase.empty())
                    found.push_back({cells[0], language.column, phrase,
                        cells.at(static_cast<std::size_t>(LanguageColumn::English))});
        return found;
    }

    /// The phrases of one language.
    [[nodiscard]] std::vector<TablePhrase> phrases(LanguageColumn language) const
    {
        std::vector<TablePhrase> found = phrases();
        std::erase_if(found, [&](const TablePhrase& phrase) { return phrase.language != language; });
        return found;
    }

    Text text;
    std::vector<std::vector<Text>> lines;
    /// What stands behind the last line end.
    std::vector<Text> remainder;
};

} // namespace rf::test
