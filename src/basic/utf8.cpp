#include "basic/text.h"

#include <array>
#include <cstdint>

// NOLINTBEGIN(readability-magic-numbers): the bit patterns of UTF-8 and UTF-16 are clearer as they are.
namespace rf {
namespace {

constexpr char16_t replacementCharacter = 0xFFFD;
constexpr char32_t lastCodePoint = 0x10FFFF;

constexpr bool isHighHalf(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool isLowHalf(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The code point that begins at a position: a pair counts as one, a half without its partner as itself.
char32_t codePointAt(TextView text, std::size_t position)
{
    const char32_t unit = text[position];
    if (!isHighHalf(unit) || position + 1 == text.size() || !isLowHalf(text[position + 1])) {
        return unit;
    }
    return 0x10000 + ((unit - 0xD800) << 10) + (text[position + 1] - 0xDC00U);
}

void appendUtf8(std::string& bytes, char32_t codePoint)
{
    const auto append = [&bytes](char32_t value) { bytes += static_cast<char>(static_cast<unsigned char>(value)); };
    const auto appendRest = [&append](char32_t value) { append(0x80 | (value & 0x3F)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        appendRest(codePoint);
    } else if (codePoint < 0x10000) {
        append(0xE0 | (codePoint >> 12));
        appendRest(codePoint >> 6);
        appendRest(codePoint);
    } else {
        append(0xF0 | (codePoint >> 18));
        appendRest(codePoint >> 12);
        appendRest(codePoint >> 6);
        appendRest(codePoint);
    }
}

void appendUtf16(Text& text, char32_t codePoint)
{
    if (codePoint < 0x10000) {
        text += static_cast<char16_t>(codePoint);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF));
}

struct Sequence {
    std::size_t length = 0; ///< 0 where no character begins.
    char32_t codePoint = 0;
};

/// What the first byte announces: the length of the sequence and the bits it carries itself.
Sequence announced(unsigned char first)
{
    if (first < 0x80) {
        return {1, first};
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return {2, first & 0x1FU};
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return {3, first & 0x0FU};
    }
    if (first >= 0xF0 && first <= 0xF4) {
        return {4, first & 0x07U};
    }
    return {};
}

Sequence sequenceAt(std::string_view bytes, std::size_t position)
{
    Sequence sequence = announced(static_cast<unsigned char>(bytes[position]));
    if (sequence.length > bytes.size() - position) {
        return {};
    }
    for (std::size_t index = 1; index < sequence.length; ++index) {
        const auto byte = static_cast<unsigned char>(bytes[position + index]);
        if ((byte & 0xC0) != 0x80) {
            return {};
        }
        sequence.codePoint = (sequence.codePoint << 6) | (byte & 0x3FU);
    }
    // The shortest form is the only one, or two byte sequences would stand for the same text.
    constexpr std::array<char32_t, 5> leastOfLength{0, 0, 0x80, 0x800, 0x10000};
    const bool valid = sequence.codePoint >= leastOfLength[sequence.length] && sequence.codePoint <= lastCodePoint;
    return valid ? sequence : Sequence{};
}

} // namespace
// NOLINTEND(readability-magic-numbers)

std::string toUtf8(TextView text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t codePoint = codePointAt(text, position);
        appendUtf8(bytes, codePoint);
        position += codePoint < 0x10000 ? 1 : 2;
    }
    return bytes;
}

Text fromUtf8(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();) {
        const Sequence sequence = sequenceAt(bytes, position);
        if (sequence.length == 0) {
            text += replacementCharacter;
            ++position;
            continue;
        }
        appendUtf16(text, sequence.codePoint);
        position += sequence.length;
    }
    return text;
}

} // namespace rf
