// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_text.h"

namespace score
{

namespace
{

constexpr char32_t kUnknown = 0xFFFD;

void Append(std::string& text, char32_t character)
{
    const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6);
        byte(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        byte(0xE0 | character >> 12);
        byte(0x80 | (character >> 6 & 0x3F));
        byte(0x80 | (character & 0x3F));
    } else {
        byte(0xF0 | character >> 18);
        byte(0x80 | (character >> 12 & 0x3F));
        byte(0x80 | (character >> 6 & 0x3F));
        byte(0x80 | (character & 0x3F));
    }
}

bool IsControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

bool IsScalar(char32_t character)
{
    return character < 0x110000 && (character < 0xD800 || character > 0xDFFF);
}

// The character at the start of `bytes`, whose length goes into `length`; nothing when it is not UTF-8.
std::optional<char32_t> TakeUtf8(std::string_view bytes, std::size_t& length)
{
    const auto at = [&bytes](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t lead = at(0);
    length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 1) {
        return lead;
    }
    if (lead < 0xC2 || lead > 0xF4 || length > bytes.size()) {
        return std::nullopt;
    }
    char32_t character = lead & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80) {
            return std::nullopt;
        }
        character = character << 6 | (at(i) & 0x3F);
    }
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    return character >= kLeast[length] && IsScalar(character) ? std::optional(character) : std::nullopt;
}

// Each character of bytes that are UTF-8 where they can be, else Latin-1.
template <class Take> void EachCharacter(std::string_view bytes, Take take)
{
    while (!bytes.empty()) {
        std::size_t length = 1;
        const auto character = TakeUtf8(bytes, length);
        take(character.value_or(static_cast<std::uint8_t>(bytes[0])));
        bytes.remove_prefix(character ? length : 1);
    }
}

std::string DecodeShiftJis(std::span<const std::uint8_t> bytes)
{
    constexpr char32_t kHalfWidthKatakana = 0xFF61;
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (IsShiftJisLead(bytes[i])) {
            Append(text, kUnknown);
            ++i;
        } else if (bytes[i] >= 0x80) {
            const bool isKatakana = bytes[i] >= 0xA1 && bytes[i] <= 0xDF;
            Append(text, isKatakana ? kHalfWidthKatakana + bytes[i] - 0xA1 : kUnknown);
        } else {
            Append(text, bytes[i]);
        }
    }
    return text;
}

std::string DecodeUtf16(std::span<const std::uint8_t> bytes)
{
    std::string text;
    const auto unit = [&bytes](std::size_t i) -> char32_t {
        return i + 1 < bytes.size() ? static_cast<char32_t>(bytes[i] << 8 | bytes[i + 1]) : 0;
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t character = unit(i);
        if (character >= 0xD800 && character < 0xDC00 && unit(i + 2) >= 0xDC00 && unit(i + 2) < 0xE000) {
            character = 0x10000 + ((character & 0x3FF) << 10 | (unit(i + 2) & 0x3FF));
            i += 2;
        }
        Append(text, IsScalar(character) ? character : kUnknown);
    }
    return text;
}

}  // namespace

bool IsShiftJisLead(std::uint8_t byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

std::string CleanText(std::string_view bytes)
{
    std::string text;
    EachCharacter(bytes, [&text](char32_t character) {
        if (!IsControl(character)) {
            Append(text, character);
        }
    });
    return text;
}

std::optional<std::string> EncodeSmafText(const std::string& text, SmafTextCode code)
{
    std::string encoded = CleanText(text);
    if (code == SmafTextCode::utf8) {
        return encoded;
    }
    std::string latin;
    bool fits = code == SmafTextCode::latin1;
    EachCharacter(encoded, [&](char32_t character) {
        fits = fits && character < 0x100;
        latin += static_cast<char>(character);
    });
    return fits ? std::optional(latin) : std::nullopt;
}

std::string DecodeSmafText(std::span<const std::uint8_t> bytes, SmafTextCode code)
{
    std::string text;
    switch (code) {
    case SmafTextCode::shiftJis:
        text = DecodeShiftJis(bytes);
        break;
    case SmafTextCode::ucs2:
    case SmafTextCode::utf16:
        text = DecodeUtf16(bytes);
        break;
    case SmafTextCode::latin1:
        for (const std::uint8_t byte : bytes) {
            Append(text, byte);
        }
        break;
    default:
        text.assign(bytes.begin(), bytes.end());
    }
    return CleanText(text);
}

}  // namespace score
