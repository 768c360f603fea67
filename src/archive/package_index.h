// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPackageIndex: what an archive's file holds, without the members' data.
//
// The list ends at the first record that does not fit the file: what lies before damage stays readable.
// References to members stay valid until the index ends.
#pragma once

#include "archive/package_record.h"
#include "platform/file_system.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace archive
{

enum class NameMatch { exact, anyCase };

// What the beginning of the file says of it.
enum class HeaderState {
    whole,
    unfinished,  // shorter than a header, and the beginning of one: a header may be written over it
    foreign,     // no archive: opens without members and must not be changed
};

class CPackageIndex
{
public:
    // Of an archive without members whose header ends at `endOfHeader` and says `count`.
    explicit CPackageIndex(std::uint64_t endOfHeader = kHeaderSize, std::uint32_t count = 0)
        : headerEnd(endOfHeader), end(endOfHeader), countInFile(count)
    {
    }
    // Reads the records of a file of `size` bytes; null when reading fails (which damage does not).
    static std::unique_ptr<CPackageIndex> Read(platform::CFile& file, std::uint64_t size);

    HeaderState Header() const { return header; }
    std::uint64_t HeaderEnd() const { return headerEnd; }
    // Where the next member goes: behind the last one that is whole.
    std::uint64_t End() const { return end; }
    // The count that the file's header holds.
    std::uint32_t CountInFile() const { return countInFile; }
    bool HoldsDeleted() const { return holdsDeleted; }
    std::size_t Count() const { return members.size(); }
    const PackageMember& Member(std::size_t index) const { return members[index]; }
    // The first member that has the name and is not deleted. "Any case" is that of ASCII letters.
    std::optional<std::size_t> Find(const std::string& name, NameMatch match);

    // These follow what was done to the file.
    void CountWritten(std::uint32_t count) { countInFile = count; }
    void Append(PackageMember member);
    void MarkDeleted(std::size_t index);
    // In memory alone.
    PackageMember& Editable(std::size_t index) { return members[index]; }

private:
    struct Link {
        std::uint32_t hash;
        std::uint32_t next;
    };
    void BuildTable(std::size_t buckets);
    void Enter(std::size_t index);

    HeaderState header = HeaderState::whole;
    std::uint64_t headerEnd;
    std::uint64_t end;
    std::uint32_t countInFile;
    bool holdsDeleted = false;
    std::deque<PackageMember> members;
    // Hash table over the names without regard to case, made at the first search: each bucket holds the
    // number of its newest member, whose link leads to older ones.
    std::vector<std::uint32_t> heads;
    std::vector<Link> links;
};

}  // namespace archive
