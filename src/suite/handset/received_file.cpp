// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/received_file.h"

#include "platform/services.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace suite
{

namespace
{

using platform::Os;
using platform::Presence;

constexpr int kMostCandidates = 1000;
constexpr std::size_t kBlock = 64 << 10;

}  // namespace

CReceivedFile::CReceivedFile(const std::string& recordFile, std::string wantedName)
    : folder(recordFile.substr(0, recordFile.rfind('/') + 1)), recordName(recordFile.substr(folder.size())),
      wanted(std::move(wantedName))
{
}

// Begun in the place of a name that is free: the first one that nothing has now.
bool CReceivedFile::Begin()
{
    for (int number = 1; number <= kMostCandidates; ++number) {
        const std::string path = folder + Candidate(number);
        if (Candidate(number) == recordName || Os().files->FindPresence(path) != Presence::missing)
            continue;
        name = Candidate(number);
        pending = Os().files->BeginReplacement(path);
        return pending ? true : Fail(path);
    }
    return Fail(folder + wanted);
}

bool CReceivedFile::Add(std::span<const std::byte> bytes)
{
    if (!pending || bytes.size() > kLongestReceived - size || !pending->File().WriteAt(size, bytes)) {
        return Fail(folder + name);
    }
    size += bytes.size();
    return true;
}

bool CReceivedFile::Keep(int index, const AddRecord& addRecord)
{
    if (!TakeName())
        return false;
    return addRecord(folder + recordName, name, index) || Fail(folder + recordName);
}

bool CReceivedFile::TakeName()
{
    for (int number = 1; number < kMostCandidates && Candidate(number) != name; ++number) {
        if (Candidate(number) != recordName && IsSameAs(folder + Candidate(number))) {
            name = Candidate(number);
            pending.reset();
            return true;
        }
    }
    isNew = pending && Os().files->FindPresence(folder + name) == Presence::missing && pending->Commit();
    return isNew || Fail(folder + name);
}

void CReceivedFile::Drop()
{
    pending.reset();
    if (std::exchange(isNew, false))
        Os().files->DeleteFile(folder + name);
}

bool CReceivedFile::Fail(const std::string& path)
{
    if (error.empty()) {
        reason = Os().files->LastError();
        error = path + ": " + reason;
    }
    return false;
}

bool CReceivedFile::IsFull() const
{
    constexpr int kNoRoom[] = {ENOSPC, EDQUOT, EFBIG};
    return std::ranges::any_of(kNoRoom, [this](int code) { return reason == std::strerror(code); });
}

std::string CReceivedFile::Candidate(int number) const
{
    if (number == 1)
        return wanted;
    const std::size_t dot = std::min(wanted.rfind('.'), wanted.size());
    return wanted.substr(0, dot) + " (" + std::to_string(number) + ")" + wanted.substr(dot);
}

bool CReceivedFile::IsSameAs(const std::string& path)
{
    const auto other = Os().files->Open(path, platform::OpenMode::read);
    const auto stamp = other ? other->Stamp() : std::nullopt;
    if (!stamp || stamp->size != size)
        return false;
    std::vector<std::byte> mine(kBlock), theirs(kBlock);
    for (std::uint64_t at = 0; at < size; at += kBlock) {
        const std::size_t count = std::min<std::uint64_t>(kBlock, size - at);
        const auto first = std::span(mine).first(count);
        const auto second = std::span(theirs).first(count);
        if (pending->File().ReadAt(at, first) != count || other->ReadAt(at, second) != count ||
            !std::ranges::equal(first, second))
            return false;
    }
    return true;
}

}  // namespace suite
