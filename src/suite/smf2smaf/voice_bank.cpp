// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/smf2smaf/voice_bank.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>
#include <span>

namespace suite
{

namespace
{

constexpr std::string_view kFirstLine = "Kelvo voice bank 1";
constexpr std::string_view kBlanks = " \t\r";

std::string_view TakeWord(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
    line.remove_prefix(word.size());
    return word;
}

std::string_view TakeLine(std::string_view& bytes)
{
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    while (!line.empty() && kBlanks.find(line.back()) != std::string_view::npos)
        line.remove_suffix(1);
    return line;
}

// The next word as a number of seven bits.
std::optional<std::uint8_t> TakeNumber(std::string_view& line)
{
    const std::string_view word = TakeWord(line);
    unsigned value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size() || value > 127)
        return std::nullopt;
    return static_cast<std::uint8_t>(value);
}

std::optional<Voice> TakeVoice(std::string_view& line)
{
    const auto high = TakeNumber(line);
    const auto low = TakeNumber(line);
    const auto program = TakeNumber(line);
    if (!high || !low || !program)
        return std::nullopt;
    return Voice{*high, *low, *program};
}

}  // namespace

bool CVoiceBank::Read(std::string_view bytes, std::string& error)
{
    *this = {};
    if (TakeLine(bytes) != kFirstLine) {
        error = "The voice bank is none.";
        return false;
    }
    for (int number = 2; !bytes.empty() && !isAtEnd; ++number) {
        if (!ReadLine(TakeLine(bytes), error)) {
            error = fmt::format("The voice bank is damaged in line {}: {}.", number, error);
            return false;
        }
    }
    if (!isAtEnd)
        error = "The voice bank is cut off.";
    return isAtEnd;
}

// `error` becomes the reason of a refusal.
bool CVoiceBank::ReadLine(std::string_view line, std::string& error)
{
    const std::string_view word = TakeWord(line);
    if (word.empty() || word.front() == '#')
        return true;
    if (word == "end") {
        isAtEnd = melodyCount == melody.size() && hasDrums;
        error = "a sound is missing";
        return isAtEnd;
    }
    const bool isMelody = word == "melody";
    if (!isMelody && word != "drums") {
        error = "the word is not known";
        return false;
    }
    const auto program = isMelody ? TakeNumber(line) : std::optional<std::uint8_t>(0);
    const auto voice = TakeVoice(line);
    if (!program || !voice) {
        error = "there is no number of 0 to 127";
        return false;
    }
    // Programs stand in their order, so that none is missing and none is there twice.
    if (isMelody ? *program != melodyCount : hasDrums) {
        error = "the sound is not the next one";
        return false;
    }
    (isMelody ? melody[melodyCount++] : drums) = *voice;
    hasDrums |= !isMelody;
    return true;
}

}  // namespace suite
