// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CReceivedFile: a file on its way into a folder, out of sight until it is whole.
//
// It takes the first free of the names "a.jpg", "a (2).jpg", ... and replaces nothing. Where one of those
// before holds the very same bytes, that file stands for it. Nothing is left of one that was not kept.
#pragma once

#include "platform/file_system.h"

namespace suite
{

constexpr std::uint64_t kLongestReceived = 1ULL << 30;  // bytes; no handset has longer ones

class CReceivedFile
{
public:
    // Into the folder of the record file, whose own name is never taken.
    CReceivedFile(const std::string& recordFile, std::string wantedName);

    bool Begin();
    bool Add(std::span<const std::byte> bytes);
    // Gives the file its name and has its record added.
    using AddRecord = std::function<bool(const std::string& recordFile, const std::string& name, int index)>;
    bool Keep(int index, const AddRecord& addRecord);
    // Takes back what Keep did.
    void Drop();

    // Under which it was kept.
    const std::string& Name() const { return name; }
    // Whether a failure on this side, which Error tells, was for want of room.
    bool IsFull() const;
    const std::string& Error() const { return error; }

private:
    bool Fail(const std::string& path);
    std::string Candidate(int number) const;
    bool IsSameAs(const std::string& path);
    bool TakeName();

    std::string folder;  // with the separator
    std::string recordName;
    std::string wanted;
    std::string name;
    std::unique_ptr<platform::CReplacement> pending;
    std::uint64_t size = 0;
    bool isNew = false;
    std::string error;
    std::string reason;  // the end of it, as the system says it
};

}  // namespace suite
