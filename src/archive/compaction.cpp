// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/compaction.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace archive
{
namespace
{

constexpr std::size_t kCopyBuffer = 262'144;
constexpr std::size_t kSmallCopyBuffer = 131'072;

// Copies pieces of one file to the end of another. Pieces that lie side by side are read in one go, and
// small ones are written together.
class CPieceCopier
{
public:
    CPieceCopier(platform::CFile& from, platform::CFile& to) : source(from), target(to), size(kCopyBuffer)
    {
        buffer.reset(new (std::nothrow) std::byte[size]);
        if (!buffer) {
            size = kSmallCopyBuffer;
            buffer.reset(new (std::nothrow) std::byte[size]);
        }
    }
    bool HasBuffer() const { return buffer != nullptr; }
    // Where the next byte goes.
    std::uint64_t Position() const { return written + filled + (pieceEnd - pieceBegin); }

    bool Copy(std::uint64_t begin, std::uint64_t length)
    {
        if (begin != pieceEnd) {
            if (!CopyPiece())
                return false;
            pieceBegin = begin;
        }
        pieceEnd = begin + length;
        return true;
    }
    bool Put(std::span<const std::byte> bytes)
    {
        if (!CopyPiece())
            return false;
        for (std::size_t count = 0; !bytes.empty(); bytes = bytes.subspan(count)) {
            if (filled == size && !Flush())
                return false;
            count = std::min(bytes.size(), size - filled);
            std::memcpy(buffer.get() + filled, bytes.data(), count);
            filled += count;
        }
        return true;
    }
    bool Finish() { return CopyPiece() && Flush(); }

private:
    bool CopyPiece()
    {
        while (pieceBegin < pieceEnd) {
            if (filled == size && !Flush())
                return false;
            const auto count =
                static_cast<std::size_t>(std::min<std::uint64_t>(pieceEnd - pieceBegin, size - filled));
            if (source.ReadAt(pieceBegin, std::span(buffer.get() + filled, count)) != count)
                return false;
            filled += count;
            pieceBegin += count;
        }
        return true;
    }
    bool Flush()
    {
        if (!target.WriteAt(written, std::span(buffer.get(), filled)))
            return false;
        written += filled;
        filled = 0;
        return true;
    }

    platform::CFile& source;
    platform::CFile& target;
    std::size_t size;
    std::unique_ptr<std::byte[]> buffer;
    std::size_t filled = 0;
    std::uint64_t written = 0;
    // A range of the source that is yet to be read.
    std::uint64_t pieceBegin = 0;
    std::uint64_t pieceEnd = 0;
};

std::uint32_t CountKept(const CPackageIndex& index)
{
    std::uint32_t count = 0;
    for (std::size_t i = 0; i < index.Count(); ++i)
        count += index.Member(i).deleted ? 0 : 1;
    return count;
}

}  // namespace

std::unique_ptr<CPackageIndex> WriteCompacted(platform::CFile& source, const CPackageIndex& index,
                                              const std::set<std::size_t>& newTexts, platform::CFile& target)
{
    CPieceCopier copier(source, target);
    const std::uint32_t count = CountKept(index);
    const std::string header = EncodeHeader(count);
    // Header texts, which no archive of our own has, stay as they are: their lengths and their bytes.
    if (!copier.HasBuffer() || !copier.Put(std::as_bytes(std::span(header)).first(kTextLengthsOffset)) ||
        !copier.Copy(kTextLengthsOffset, index.HeaderEnd() - kTextLengthsOffset))
        return nullptr;

    auto compacted = std::make_unique<CPackageIndex>(index.HeaderEnd(), count);
    for (std::size_t i = 0; i < index.Count(); ++i) {
        PackageMember member = index.Member(i);
        if (member.deleted)
            continue;
        const std::uint64_t recordPosition = copier.Position();
        const std::string record = newTexts.contains(i) ? EncodeRecord(member) : std::string();
        const std::uint64_t dataSize = member.storedSize;
        const std::uint64_t recordSize = member.dataPosition - member.recordPosition;
        const bool copied = record.empty() ? copier.Copy(member.recordPosition, recordSize + dataSize)
                                           : copier.Put(std::as_bytes(std::span(record))) &&
                                                 copier.Copy(member.dataPosition, dataSize);
        if (!copied)
            return nullptr;
        member.recordPosition = recordPosition;
        member.dataPosition = copier.Position() - dataSize;
        compacted->Append(std::move(member));
    }
    return copier.Finish() ? std::move(compacted) : nullptr;
}

}  // namespace archive
