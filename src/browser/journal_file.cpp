// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/journal_file.h"

#include "browser/escaped_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
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
