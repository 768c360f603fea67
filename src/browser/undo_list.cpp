// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/undo_list.h"

#include <utility>

namespace browser
{

namespace
{
constexpr std::size_t kMostRecords = 100;
constexpr std::size_t kMostSteps = 200'000;
}  // namespace

void CUndoList::Push(UndoRecord record)
{
    if (record.steps.empty())
        return;
    stepCount += record.steps.size();
    records.push_back(std::move(record));
    while (records.size() > 1 && (records.size() > kMostRecords || stepCount > kMostSteps)) {
        stepCount -= records.front().steps.size();
        records.pop_front();
    }
}

void CUndoList::PushBelow(std::vector<UndoRecord> older)
{
    std::deque<UndoRecord> later = std::move(records);
    records.clear();
    stepCount = 0;
    for (UndoRecord& record : older) {
        Push(std::move(record));
    }
    for (UndoRecord& record : later) {
        Push(std::move(record));
    }
}

std::optional<UndoRecord> CUndoList::Take()
{
    if (records.empty())
        return std::nullopt;
    UndoRecord latest = std::move(records.back());
    records.pop_back();
    stepCount -= latest.steps.size();
    return latest;
}

}  // namespace browser
