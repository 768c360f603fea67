// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPackageIndex: what an archive's file holds, without the members' data.
//
// Records are read as far as they are asked for: a search stops reading where it finds its member. The list
// ends at the first record that does not fit the file: what lies before damage stays readable. References to
// members stay valid until the index ends. Every call that takes the file must be given it in the state that
// the index describes.
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
    // Reads the header of a file of `size` bytes; null when reading fails (which damage does not).
    static std::unique_ptr<CPackageIndex> Begin(platform::CFile& file, std::uint64_t size);

    // Reads the records that were not read yet. False when reading fails; what was read stays.
    bool ReadAll(platform::CFile& file) { return ReadOn(file, nullptr, NameMatch::exact); }
    // The first member that has the name and is not deleted. "Any case" is that of ASCII letters.
    std::optional<std::size_t> Find(platform::CFile& file, const std::string& name, NameMatch match);

    HeaderState Header() const { return header; }
    std::uint64_t HeaderEnd() const { return headerEnd; }
    // The number of members read so far, and where the last one ends.
    std::size_t Count() const { return members.size(); }
    std::uint64_t End() const { return end; }
    // The count that the file's header holds.
    std::uint32_t CountInFile() const { return countInFile; }
    bool HoldsDeleted() const { return holdsDeleted; }
    // Whether it is known how many members the file holds and where the last one ends, read or not.
    bool KnowsTail() const { return unreadEnd == 0 || tailIsTrusted; }
    std::uint64_t Tail() const { return unreadEnd > 0 ? unreadEnd : end; }
    std::uint32_t CountToTail() const
    {
        return unreadEnd > 0 ? countInFile : static_cast<std::uint32_t>(Count());
    }
    // The caller vouches that the unread records, as many as the header says, end where the file ends.
    void TrustTail() { tailIsTrusted = true; }
    const PackageMember& Member(std::size_t index) const { return members[index]; }

    // These follow what was done to the file, whose tail is known: a member was counted, then written at it.
    void CountWritten(std::uint32_t count) { countInFile = count; }
    void Append(PackageMember member);
    void MarkDeleted(std::size_t index);
    // In memory alone.
    PackageMember& Editable(std::size_t index) { return members[index]; }
    void Rename(std::size_t index, const std::string& name);

private:
    struct Link {
        std::uint32_t hash;
        std::uint32_t next;
    };
    // Up to the first member that has the name and is not deleted, if a name is given.
    bool ReadOn(platform::CFile& file, const std::string* name, NameMatch match);
    void Take(PackageMember member);
    std::optional<std::size_t> FindRead(const std::string& name, NameMatch match);
    void BuildTable(std::size_t buckets);
    void Enter(std::size_t index);

    HeaderState header = HeaderState::whole;
    std::uint64_t headerEnd;
    std::uint64_t end;
    std::uint32_t countInFile;
    bool holdsDeleted = false;
    std::uint64_t unreadEnd = 0;  // of the records yet to be read: the file's size, or 0 when there are none
    bool tailIsTrusted = false;
    std::deque<PackageMember> members;
    // Hash table over the names without regard to case, made when the first search in memory is due: each
    // bucket holds the number of its newest member, whose link leads to older ones.
    std::vector<std::uint32_t> heads;
    std::vector<Link> links;
};

}  // namespace archive
