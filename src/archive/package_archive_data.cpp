// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The part of CPackageArchive that moves the members' data in and out.
#include "archive/member_streams.h"
#include "archive/package_archive.h"
#include "platform/services.h"

#include <algorithm>
#include <array>
#include <limits>
#include <random>

namespace archive
{
namespace
{

constexpr std::size_t kWriteBlock = 64 * 1024;
// A stream may give as much as its member's source is said to have had, but this much in any case: what is
// stored under a photo's name is not the photo.
constexpr std::uint64_t kAlwaysAllowed = 16 * 1024 * 1024;
constexpr std::uint64_t kMostInMemory = 1024 * 1024 * 1024;
constexpr std::uint64_t kMostStored = std::numeric_limits<std::uint32_t>::max();
constexpr int kTriesForName = 16;

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

// Both separators count: archives come from systems that use either.
bool IsPlainFileName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\\\0", 3)) == std::string::npos;
}

// An empty file of an unused short name; null when none can be made.
std::unique_ptr<platform::CFile> MakeTemporary(const std::string& folder, std::string& path)
{
    static constexpr char kDigits[] = "0123456789abcdef";
    std::random_device random;
    for (int i = 0; i < kTriesForName; ++i) {
        path = folder + ".kelvo-";
        for (unsigned bits = random(), digit = 0; digit < 8; ++digit, bits >>= 4)
            path.push_back(kDigits[bits & 0xf]);
        if (auto file = Files().Open(path, platform::OpenMode::createNew))
            return file;
        if (Files().FindPresence(path) != platform::Presence::present)
            break;
    }
    return nullptr;
}

std::uint64_t LengthOf(platform::CFile& file)
{
    const auto facts = file.Stamp();
    return facts ? facts->size : 0;
}

std::uint64_t MostOutput(const PackageMember& member)
{
    return std::max(member.originalSize, kAlwaysAllowed);
}

}  // namespace

std::unique_ptr<platform::CFile> CPackageArchive::OpenSource(const std::string& source,
                                                             const AddOptions& options, PackageMember& member)
{
    const std::size_t separator = options.keepFullName ? std::string::npos : source.rfind('/');
    member.name = separator == std::string::npos ? source : source.substr(separator + 1);
    if (!options.memberName.empty())
        member.name = options.memberName;
    member.timeStampText = options.timeStampText;
    member.caption = options.caption;
    member.secondText = options.secondText;
    member.thirdTime = options.thirdTime;
    const auto isTooLong = [](const std::string& text) { return text.size() > kLongestText; };
    if (isTooLong(member.name) || isTooLong(member.timeStampText) || isTooLong(member.caption) ||
        isTooLong(member.secondText)) {
        Fail("the name or the text is longer than 65535 bytes");
        return nullptr;
    }
    auto opened = Files().Open(source, platform::OpenMode::read);
    if (!opened) {
        FailAs("the file to be added cannot be opened");
        return nullptr;
    }
    SourceFacts facts;
    if (options.facts) {
        facts = *options.facts;
    } else if (const auto entry = Files().FindFirstFile(source)) {
        facts = {entry->creationTime, entry->lastWriteTime, entry->size};
    } else {
        FailAs("the file to be added cannot be looked at");
        return nullptr;
    }
    member.creationTime = facts.creationTime;
    member.lastWriteTime = facts.lastWriteTime;
    member.originalSize = facts.size;
    return opened;
}

bool CPackageArchive::BeginAdding()
{
    if (!MayChange() || !FindTail())
        return false;
    error.clear();
    return index->CountToTail() < std::numeric_limits<std::uint32_t>::max() - 1 ||
           Fail("the archive holds as many members as it can");
}

bool CPackageArchive::AddFile(const std::string& source, const AddOptions& options)
{
    PackageMember member;
    const auto input = BeginAdding() ? OpenSource(source, options, member) : nullptr;
    if (!input || !PrepareHeader())
        return false;
    member.recordPosition = index->Tail();
    const bool written = WriteMember(*input, member);
    return EndAdding(written, std::move(member));
}

// Counts the member that was written behind the last one, or takes away what there is of it.
bool CPackageArchive::EndAdding(bool written, PackageMember member)
{
    changed = true;
    if (written && WriteCount(index->CountToTail() + 1)) {
        index->Append(std::move(member));
        return true;
    }
    if (error.empty())
        FailAs("the archive cannot be written");
    file->Truncate(member.recordPosition);
    return false;
}

std::optional<RawMember> CPackageArchive::TakeRaw(std::size_t position)
{
    if (!MayExtract(position))
        return std::nullopt;
    RawMember taken{Member(position), std::string(Member(position).storedSize, '\0')};
    const std::size_t read =
        file->ReadAt(taken.record.dataPosition, std::as_writable_bytes(std::span(taken.data)));
    if (read == taken.data.size())
        return taken;
    FailAs("the archive cannot be read");
    return std::nullopt;
}

bool CPackageArchive::AddRaw(const RawMember& member)
{
    if (!BeginAdding() || !PrepareHeader())
        return false;
    PackageMember record = member.record;
    record.deleted = false;
    record.storedSize = static_cast<std::uint32_t>(member.data.size());
    record.recordPosition = index->Tail();
    const std::string head = EncodeRecord(record);
    record.dataPosition = record.recordPosition + head.size();
    CBlockWriter writer(*file, record.recordPosition, kWriteBlock);
    const bool written = writer.Append(std::as_bytes(std::span(head))) &&
                         writer.Append(std::as_bytes(std::span(member.data))) && writer.Flush();
    return EndAdding(written, std::move(record));
}

// Writes the record and the data behind the last member; the count is left alone.
bool CPackageArchive::WriteMember(platform::CFile& source, PackageMember& member)
{
    error.clear();
    const auto facts = source.Stamp();
    if (!facts)
        return FailAs("the file to be added cannot be read");
    if (facts->inode == stamp.inode && facts->device == stamp.device)
        return Fail("an archive cannot hold itself");
    CBlockWriter writer(*file, member.recordPosition, kWriteBlock);
    const std::string record = EncodeRecord(member);
    writer.Append(std::as_bytes(std::span(record)));
    member.dataPosition = writer.Position();

    const CMemberStream::Watch watch{aborted, [this](int percent) { Progress(percent); }};
    CRangeReader reader(source, 0, facts->size);
    CFileSink ends(reader, facts->size, watch, writer, kMostStored);
    if (!deflater)
        deflater = std::make_unique<CDeflater>();
    int result = deflater->Run(ends);
    const std::uint64_t stored = writer.Position() - member.dataPosition;
    if (ends.WasFull())
        Fail("the compressed file is longer than 4 GiB");
    else if (result == kUserAbort)
        Fail("stopped by the user");
    else if (result == 0 && !reader.ReachedEnd())
        Fail("the file to be added could not be read to its end");
    else if (result == 0) {
        std::array<std::byte, 4> size;
        StoreNumber(size.data(), stored, size.size());
        if (!writer.Patch(member.recordPosition + kStoredSizeOffset, size) || !writer.Flush()) {
            FailAs("the archive cannot be written");
            result = -1;
        }
    }
    member.storedSize = static_cast<std::uint32_t>(stored);
    Result(ResultText(result));
    return result == 0 && error.empty();
}

bool CPackageArchive::MayExtract(std::size_t position)
{
    damaged = false;
    if (!IsOpen())
        return Fail("no archive is open");
    if (!Holds(position) || Member(position).deleted)
        return Fail("there is no such member");
    return true;
}

bool CPackageArchive::ExtractToMemory(std::size_t position, std::string& data)
{
    data.clear();
    if (!MayExtract(position))
        return false;
    const PackageMember& member = Member(position);
    const CMemberStream::Watch watch{aborted, [this](int percent) { Progress(percent); }};
    CRangeReader reader(*file, member.dataPosition, member.dataPosition + member.storedSize);
    CMemorySink ends(reader, LengthOf(*file), watch, data, std::min(MostOutput(member), kMostInMemory));
    const int result = Inflate(ends);
    Result(ResultText(result));
    if (result == 0)
        return true;
    data.clear();
    data.shrink_to_fit();
    return FailExtraction(result, reader.Failed());
}

bool CPackageArchive::FailExtraction(int result, bool unreadable)
{
    damaged = result != kUserAbort && !unreadable;
    if (result == kUserAbort)
        return Fail("stopped by the user");
    return unreadable ? FailAs("the archive cannot be read") : Fail("the member's data are damaged");
}

bool CPackageArchive::ExtractToFolder(std::size_t position, const std::string& folder)
{
    if (!MayExtract(position))
        return false;
    if (folder.empty())
        return Fail("no folder was named");
    const PackageMember& member = Member(position);
    if (!IsPlainFileName(member.name))
        return Fail("the member's name is not that of a file in the folder");
    const std::string prefix = folder.back() == '/' ? folder : folder + '/';
    std::string temporary;
    auto output = MakeTemporary(prefix, temporary);
    if (!output)
        return FailAs("the file cannot be made");

    const CMemberStream::Watch watch{aborted, [this](int percent) { Progress(percent); }};
    CRangeReader reader(*file, member.dataPosition, member.dataPosition + member.storedSize);
    CBlockWriter writer(*output, 0, kWriteBlock);
    CFileSink ends(reader, LengthOf(*file), watch, writer, MostOutput(member));
    const int result = Inflate(ends);
    bool done = result == 0;
    if (!done)
        FailExtraction(result, reader.Failed());
    else if (!writer.Flush())
        done = FailAs("the file cannot be written");
    output.reset();
    Result(ResultText(done || result != 0 ? result : -1));
    if (done && !Files().MoveFile(temporary, prefix + member.name))
        done = FailAs("the file cannot be put in its place");
    if (!done)
        Files().DeleteFile(temporary);
    return done;
}

}  // namespace archive
