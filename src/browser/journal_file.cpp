// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/journal_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <vector>

namespace browser
{

namespace
{

constexpr std::string_view kFirstLine = "Kelvo journal 1";
constexpr std::array<std::string_view, 3> kStates{"begun", "done", "undone"};
// The kinds of steps that are written down, by their words.
constexpr std::string_view kMove = "move";
constexpr std::string_view kTimes = "times";

// A text without the bytes that have a meaning in the file: those become "%" and two hexadecimal digits.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || c == '%') {
            fmt::format_to(std::back_inserter(escaped), "%{:02x}", byte);
        } else {
            escaped.push_back(c);
        }
    }
    return escaped;
}

template <typename Number> bool ReadNumber(std::string_view text, Number& number, int base = 10)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

std::string Unescaped(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned byte = 0;
        if (text[i] == '%' && i + 2 < text.size() && ReadNumber(text.substr(i + 1, 2), byte, 16)) {
            plain.push_back(static_cast<char>(byte));
            i += 2;
        } else {
            plain.push_back(text[i]);
        }
    }
    return plain;
}

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

bool ReadStep(const std::vector<std::string_view>& fields, UndoStep& step)
{
    if (fields.size() != 7 && fields.size() != 6) {
        return false;
    }
    step.path = Unescaped(fields[1]);
    if (fields[0] == kMove && fields.size() == 7) {
        step.action = UndoAction::moveBack;
        step.origin = Unescaped(fields[2]);
        return ReadNumber(fields[3], step.stamp.device) && ReadNumber(fields[4], step.stamp.inode) &&
               ReadNumber(fields[5], step.stamp.size) &&
               ReadNumber(fields[6], step.stamp.modifiedNanoseconds);
    }
    step.action = UndoAction::restoreTimes;
    return fields[0] == kTimes && fields.size() == 6 && ReadNumber(fields[2], step.before.creation) &&
           ReadNumber(fields[3], step.before.lastWrite) && ReadNumber(fields[4], step.after.creation) &&
           ReadNumber(fields[5], step.after.lastWrite);
}

void WriteStep(const UndoStep& step, std::string& text)
{
    const auto out = std::back_inserter(text);
    if (step.action == UndoAction::moveBack) {
        fmt::format_to(out, "{}\t{}\t{}\t{}\t{}\t{}\t{}\n", kMove, Escaped(step.path), Escaped(step.origin),
                       step.stamp.device, step.stamp.inode, step.stamp.size, step.stamp.modifiedNanoseconds);
    } else if (step.action == UndoAction::restoreTimes) {
        fmt::format_to(out, "{}\t{}\t{}\t{}\t{}\t{}\n", kTimes, Escaped(step.path), step.before.creation,
                       step.before.lastWrite, step.after.creation, step.after.lastWrite);
    }
}

}  // namespace

std::optional<JournalState> StateOf(std::string_view text)
{
    if (!text.starts_with(kFirstLine) || text.size() <= kFirstLine.size()) {
        return std::nullopt;
    }
    text.remove_prefix(kFirstLine.size() + 1);
    const auto state = std::ranges::find(kStates, text.substr(0, text.find('\t')));
    return state == kStates.end() ? std::nullopt
                                  : std::optional(static_cast<JournalState>(state - kStates.begin()));
}

std::string EncodeJournal(JournalState state, const UndoRecord& record)
{
    const char* task = record.task == FileTask::changeTimes ? "times" : "rename";
    std::string text =
        fmt::format("{}\n{}\t{}\t{}\t{}\t{}\n", kFirstLine, kStates.at(static_cast<std::size_t>(state)), task,
                    record.when, record.items, Escaped(record.name));
    for (const UndoStep& step : record.steps) {
        WriteStep(step, text);
    }
    return text + fmt::format("end\t{}\n", record.steps.size());
}

std::optional<JournalEntry> DecodeJournal(std::string_view text)
{
    if (!text.ends_with('\n')) {
        return std::nullopt;
    }
    text.remove_suffix(1);
    const std::vector<std::string_view> lines = Split(text, '\n');
    const auto head = lines.size() < 3 ? std::vector<std::string_view>() : Split(lines[1], '\t');
    if (head.size() != 5 || lines[0] != kFirstLine ||
        lines.back() != fmt::format("end\t{}", lines.size() - 3)) {
        return std::nullopt;
    }
    JournalEntry entry;
    const auto state = StateOf(text);
    if (!state || !ReadNumber(head[2], entry.record.when) || !ReadNumber(head[3], entry.record.items)) {
        return std::nullopt;
    }
    entry.state = *state;
    entry.record.task = head[1] == "times" ? FileTask::changeTimes : FileTask::rename;
    entry.record.name = Unescaped(head[4]);
    for (std::size_t i = 2; i + 1 < lines.size(); ++i) {
        UndoStep step;
        if (!ReadStep(Split(lines[i], '\t'), step)) {
            return std::nullopt;
        }
        entry.record.steps.push_back(std::move(step));
    }
    return entry;
}

}  // namespace browser
