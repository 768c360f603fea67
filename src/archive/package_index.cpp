// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/package_index.h"

#include <algorithm>
#include <limits>
#include <new>

namespace archive
{
namespace
{

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kFewestBuckets = 64;
// One read takes a record with its texts; where members are small, one takes many of them.
constexpr std::size_t kShortRead = 256;
constexpr std::size_t kLongRead = 64 * 1024;
constexpr std::uint64_t kSmallMember = 2048;

char Fold(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::uint32_t HashOf(const std::string& name)
{
    std::uint32_t hash = 2166136261U;
    for (const char letter : name)
        hash = (hash ^ static_cast<unsigned char>(Fold(letter))) * 16777619U;
    return hash;
}

bool SameName(const std::string& left, const std::string& right, NameMatch match)
{
    if (match == NameMatch::exact || left.size() != right.size())
        return left == right;
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char one, char other) { return Fold(one) == Fold(other); });
}

// Hands out pieces of the file from a buffer that it refills as needed.
class CWindow
{
public:
    CWindow(platform::CFile& windowed, std::uint64_t fileSize) : file(windowed), size(fileSize) {}

    bool Fits(std::uint64_t position, std::uint64_t length) const
    {
        return position <= size && length <= size - position;
    }
    // `length` bytes that fit the file, or null when they cannot be read.
    const std::byte* At(std::uint64_t position, std::size_t length, std::size_t ahead)
    {
        if (position < start || position + length > start + filled) {
            const std::size_t wanted =
                static_cast<std::size_t>(std::min<std::uint64_t>(std::max(length, ahead), size - position));
            if (buffer.size() < wanted)
                buffer.resize(wanted);
            start = position;
            filled = file.ReadAt(position, std::span(buffer).first(wanted));
            if (filled < length)
                return nullptr;
        }
        return buffer.data() + (position - start);
    }

private:
    platform::CFile& file;
    std::uint64_t size;
    std::vector<std::byte> buffer;
    std::uint64_t start = 0;
    std::size_t filled = 0;
};

}  // namespace

std::unique_ptr<CPackageIndex> CPackageIndex::Begin(platform::CFile& file, std::uint64_t size)
{
    auto index = std::make_unique<CPackageIndex>();
    CWindow window(file, size);
    const auto known = static_cast<std::size_t>(std::min<std::uint64_t>(size, kHeaderSize));
    const std::byte* bytes = window.At(0, known, known);
    if (known > 0 && !bytes)
        return nullptr;
    const auto magic = std::as_bytes(std::span(kPackageMagic)).first(std::min(known, kPackageMagic.size()));
    if (!std::equal(magic.begin(), magic.end(), bytes))
        index->header = HeaderState::foreign;
    else if (known < kHeaderSize)
        index->header = HeaderState::unfinished;
    if (index->header != HeaderState::whole)
        return index;
    index->countInFile = static_cast<std::uint32_t>(LoadNumber(bytes + kCountOffset, 4));
    index->headerEnd = index->end = kHeaderSize + HeaderTextsSize(bytes);
    if (index->headerEnd > size)
        index->header = HeaderState::foreign;
    else
        index->unreadEnd = size;
    return index;
}

bool CPackageIndex::ReadOn(platform::CFile& file, const std::string* name, NameMatch match)
try {
    CWindow window(file, unreadEnd);
    std::size_t ahead = kShortRead;
    while (unreadEnd > 0) {
        if (Count() >= countInFile || !window.Fits(end, kRecordSize)) {
            unreadEnd = 0;
            break;
        }
        const std::byte* bytes = window.At(end, kRecordSize, ahead);
        if (!bytes)
            return false;
        const std::size_t recordSize = kRecordSize + RecordTextsSize(bytes);
        const std::uint64_t wholeSize = recordSize + LoadNumber(bytes + kStoredSizeOffset, 4);
        if (!window.Fits(end, wholeSize)) {
            unreadEnd = 0;
            break;
        }
        if (!(bytes = window.At(end, recordSize, ahead)))
            return false;
        PackageMember member = DecodeRecord(bytes);
        member.recordPosition = end;
        member.dataPosition = end + recordSize;
        Take(std::move(member));
        if (name && !members.back().deleted && SameName(members.back().name, *name, match))
            break;
        ahead = wholeSize < kSmallMember ? kLongRead : kShortRead;
    }
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

std::optional<std::size_t> CPackageIndex::Find(platform::CFile& file, const std::string& name,
                                               NameMatch match)
{
    if (name.empty())
        return std::nullopt;
    const std::size_t known = Count();
    if (known > 0) {
        if (const auto found = FindRead(name, match))
            return found;
    }
    if (!ReadOn(file, &name, match) || Count() == known)
        return std::nullopt;
    const PackageMember& latest = members.back();
    return !latest.deleted && SameName(latest.name, name, match) ? std::optional(Count() - 1) : std::nullopt;
}

void CPackageIndex::Append(PackageMember member)
{
    if (unreadEnd > 0)
        unreadEnd = member.dataPosition + member.storedSize;
    else
        Take(std::move(member));
}

void CPackageIndex::Take(PackageMember member)
{
    end = member.dataPosition + member.storedSize;
    holdsDeleted = holdsDeleted || member.deleted;
    members.push_back(std::move(member));
    if (heads.empty())
        return;
    if (members.size() > heads.size())
        BuildTable(heads.size() * 2);
    else
        Enter(members.size() - 1);
}

void CPackageIndex::MarkDeleted(std::size_t index)
{
    members[index].deleted = true;
    holdsDeleted = true;
    if (heads.empty())
        return;
    std::uint32_t* place = &heads[links[index].hash & (heads.size() - 1)];
    while (*place != kNone && *place != index)
        place = &links[*place].next;
    if (*place != kNone)
        *place = links[index].next;
}

// Searches take up the new name with a new table.
void CPackageIndex::Rename(std::size_t index, const std::string& name)
{
    members[index].name = name;
    heads.clear();
    links.clear();
}

std::optional<std::size_t> CPackageIndex::FindRead(const std::string& name, NameMatch match)
{
    if (heads.empty())
        BuildTable(kFewestBuckets);
    const std::uint32_t hash = HashOf(name);
    std::uint32_t first = kNone;
    for (std::uint32_t i = heads[hash & (heads.size() - 1)]; i != kNone; i = links[i].next)
        if (i < first && links[i].hash == hash && SameName(members[i].name, name, match))
            first = i;
    return first == kNone ? std::nullopt : std::optional<std::size_t>(first);
}

void CPackageIndex::BuildTable(std::size_t buckets)
{
    while (buckets < members.size())
        buckets *= 2;
    heads.assign(buckets, kNone);
    links.clear();
    links.reserve(buckets);
    for (std::size_t i = 0; i < members.size(); ++i)
        Enter(i);
}

// Deleted members get a link, so that links and members keep one numbering, but no place in a bucket.
void CPackageIndex::Enter(std::size_t index)
{
    const std::uint32_t hash = HashOf(members[index].name);
    links.push_back({hash, kNone});
    if (members[index].deleted)
        return;
    std::uint32_t& head = heads[hash & (heads.size() - 1)];
    links.back().next = head;
    head = static_cast<std::uint32_t>(index);
}

}  // namespace archive
