// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, finding, changing records and closing; the members' data are in package_archive_data.cpp.
#include "archive/package_archive.h"

#include "archive/compaction.h"
#include "archive/index_cache.h"
#include "archive/zlib_stream.h"
#include "platform/services.h"

#include <array>

namespace archive
{
namespace
{

// Each time round, another process has replaced the archive since it was opened here.
constexpr int kMostReopenings = 1000;
// Says of the file with which stamp and count its last member ends where the file ends.
constexpr const char* kTailNote = "archive-tail";

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

std::string TailNote(const platform::FileStamp& stamp, std::uint32_t count)
{
    return std::to_string(stamp.size) + ' ' + std::to_string(stamp.modifiedNanoseconds) + ' ' +
           std::to_string(count);
}

void KeepTailNote(platform::CFile& file, const platform::FileStamp& stamp, const CPackageIndex& index)
{
    if (index.KnowsTail() && index.Tail() == stamp.size && index.CountToTail() == index.CountInFile())
        file.KeepNote(kTailNote, TailNote(stamp, index.CountInFile()));
}

}  // namespace

CPackageArchive::CPackageArchive() = default;

CPackageArchive::~CPackageArchive()
{
    if (IsOpen())
        Close(false);
}

void CPackageArchive::Progress(int) {}

void CPackageArchive::Result(const std::string&) {}

bool CPackageArchive::Fail(const std::string& reason)
{
    error = reason;
    return false;
}

bool CPackageArchive::FailAs(const std::string& what)
{
    return Fail(what + ": " + Files().LastError());
}

bool CPackageArchive::Open(const std::string& path, Mode wanted)
{
    if (IsOpen())
        Close(false);
    aborted = false;
    if (path.empty())
        return Fail("no file was named");
    Opening opening = Opening::again;
    for (int i = 0; opening == Opening::again && i < kMostReopenings; ++i)
        opening = OpenLocked(path, wanted);
    if (opening == Opening::again)
        return Fail("the archive is replaced again and again");
    if (opening == Opening::failed)
        return false;
    archivePath = path;
    mode = wanted;
    if (mode != Mode::create ? BeginIndex() : PrepareHeader())
        return true;
    Forget();
    return false;
}

CPackageArchive::Opening CPackageArchive::OpenLocked(const std::string& path, Mode wanted)
{
    const bool reads = wanted == Mode::read;
    file = Files().Open(path, reads ? platform::OpenMode::read : platform::OpenMode::readWrite);
    if (!file && wanted == Mode::create) {
        file = Files().Open(path, platform::OpenMode::createNew);
        if (!file && Files().FindPresence(path) == platform::Presence::present &&
            Files().Open(path, platform::OpenMode::readWrite))
            return Opening::again;
    }
    if (!file) {
        FailAs("the archive cannot be opened");
        return Opening::failed;
    }
    if (!file->Lock(reads ? platform::LockKind::shared : platform::LockKind::exclusive, patience)) {
        Forget();
        Fail("the archive is in use by another program");
        return Opening::failed;
    }
    if (file->IsStill(path))
        return Opening::done;
    Forget();
    return Opening::again;
}

bool CPackageArchive::BeginIndex()
{
    const auto found = file->Stamp();
    if (!found)
        return FailAs("the archive cannot be read");
    stamp = *found;
    index = TakeIndex(archivePath, stamp);
    if (!index)
        index = CPackageIndex::Begin(*file, stamp.size);
    return index || FailAs("the archive cannot be read");
}

// Writes the header over whatever the file holds, which empties an archive in one step.
bool CPackageArchive::PrepareHeader()
{
    if (index && index->Header() == HeaderState::whole)
        return true;
    const std::string header = EncodeHeader(0);
    if (!file->WriteAt(0, std::as_bytes(std::span(header))) || !file->Truncate(header.size()))
        return FailAs("the archive cannot be written");
    index = std::make_unique<CPackageIndex>();
    changed = true;
    stamp = file->Stamp().value_or(platform::FileStamp());
    return true;
}

bool CPackageArchive::WriteCount(std::uint32_t count)
{
    if (index->CountInFile() == count)
        return true;
    const auto write = [this](std::uint32_t number) {
        std::array<std::byte, 4> bytes;
        StoreNumber(bytes.data(), number, bytes.size());
        return file->WriteAt(kCountOffset, bytes);
    };
    if (!write(count)) {
        write(index->CountInFile());
        return false;
    }
    index->CountWritten(count);
    return true;
}

bool CPackageArchive::Close(bool compact)
{
    if (!IsOpen())
        return Fail("no archive is open");
    bool done = true;
    if (compact && mode == Mode::read)
        done = Fail("the archive is open for reading only");
    else if (compact)
        done = Compact();
    if (IsOpen())
        KeepState();
    Forget();
    return done;
}

// Leaves what is known of the file to the next one who opens it.
void CPackageArchive::KeepState()
{
    // Without the mark, the index could not be told from one of an earlier state. Nobody else opens the
    // archive before; after a kill it bears the time of the last write, which is no mark's.
    if (!index || (changed && !file->MarkChanged()))
        return;
    const auto present = changed ? file->Stamp() : stamp;
    if (!present)
        return;
    if (changed)
        KeepTailNote(*file, *present, *index);
    if (newTexts.empty())
        KeepIndex(archivePath, *present, std::move(index));
}

// Closes and leaves nothing behind.
void CPackageArchive::Forget()
{
    file.reset();
    index.reset();
    archivePath.clear();
    newTexts.clear();
    replacement.reset();
    replacementIndex.reset();
    deflater.reset();
    changed = false;
}

std::optional<std::size_t> CPackageArchive::Find(const std::string& name) const
{
    return index ? index->Find(*file, name, NameMatch::anyCase) : std::nullopt;
}

std::optional<std::size_t> CPackageArchive::FindExact(const std::string& name) const
{
    return index ? index->Find(*file, name, NameMatch::exact) : std::nullopt;
}

std::size_t CPackageArchive::Count() const
{
    return index && index->ReadAll(*file) ? index->Count() : 0;
}

bool CPackageArchive::Holds(std::size_t position) const
{
    return (index && position < index->Count()) || position < Count();
}

bool CPackageArchive::MayChange()
{
    if (!IsOpen())
        return Fail("no archive is open");
    if (mode == Mode::read)
        return Fail("the archive is open for reading only");
    if (index->Header() == HeaderState::foreign)
        return Fail("the file is not a package archive");
    return true;
}

bool CPackageArchive::ReadAll()
{
    return index->ReadAll(*file) || FailAs("the archive cannot be read");
}

// What the note says can at worst be untrue of the records: a member is added at the end of the file in any
// case, and only if the header holds the count of which the note speaks.
bool CPackageArchive::FindTail()
{
    if (!index->KnowsTail() && file->Note(kTailNote) == TailNote(stamp, index->CountInFile()))
        index->TrustTail();
    return index->KnowsTail() || ReadAll();
}

bool CPackageArchive::Remove(std::size_t position)
{
    if (!MayChange() || !ReadAll())
        return false;
    if (mode != Mode::readWrite)
        return Fail("the archive was opened for making it anew");
    if (!Holds(position))
        return Fail("there is no such member");
    if (Member(position).deleted)
        return true;
    std::array<std::byte, 2> mark;
    StoreNumber(mark.data(), 1, mark.size());
    if (!file->WriteAt(Member(position).recordPosition + kDeletedMarkOffset, mark))
        return FailAs("the member cannot be marked as deleted");
    index->MarkDeleted(position);
    // A count beyond the last whole member is put right as well.
    const bool counted = WriteCount(static_cast<std::uint32_t>(Count()));
    changed = true;
    return counted || FailAs("the archive cannot be written");
}

bool CPackageArchive::SetTexts(std::size_t position, const std::optional<std::string>& caption,
                               const std::optional<std::string>& timeStampText,
                               const std::optional<std::string>& secondText)
{
    if (!Holds(position) || Member(position).deleted)
        return Fail("there is no such member");
    PackageMember& member = index->Editable(position);
    const std::pair<std::string*, const std::optional<std::string>&> texts[] = {
        {&member.caption, caption}, {&member.timeStampText, timeStampText}, {&member.secondText, secondText}};
    for (const auto& [held, given] : texts)
        if (given && given->size() > kLongestText)
            return Fail("the text is longer than 65535 bytes");
    for (const auto& [held, given] : texts) {
        const std::string text = given.value_or(std::string());
        if (*held == text)
            continue;
        *held = text;
        newTexts.insert(position);
    }
    return true;
}

bool CPackageArchive::SetName(std::size_t position, const std::string& name)
{
    if (!Holds(position) || Member(position).deleted)
        return Fail("there is no such member");
    if (name.empty() || name.size() > kLongestText)
        return Fail("a member has a name of 1 to 65535 bytes");
    if (Member(position).name == name)
        return true;
    index->Rename(position, name);
    newTexts.insert(position);
    return true;
}

// Whether compaction would give another file than the one there is.
bool CPackageArchive::NeedsCompaction() const
{
    const auto present = file->Stamp();
    return index->HoldsDeleted() || !newTexts.empty() || !present || present->size != index->End() ||
           index->CountInFile() != index->Count();
}

bool CPackageArchive::Compact()
{
    if (!MayChange() || !ReadAll() || !PrepareHeader())
        return false;
    if (!NeedsCompaction())
        return true;
    return WriteReplacement() && PutReplacement();
}

bool CPackageArchive::WriteReplacement()
{
    replacement = Files().BeginReplacement(archivePath);
    if (!replacement)
        return FailAs("the archive cannot be replaced");
    platform::CFile& target = replacement->File();
    replacementIndex = WriteCompacted(*file, *index, newTexts, target);
    return replacementIndex != nullptr || FailAs("the new archive cannot be written");
}

bool CPackageArchive::PutReplacement()
{
    platform::CFile& target = replacement->File();
    const auto written = target.MarkChanged() ? target.Stamp() : std::nullopt;
    if (written)
        KeepTailNote(target, *written, *replacementIndex);
    if (!file->IsStill(archivePath))
        return Fail("the archive was replaced or deleted by another program");
    // The lock is held until the new file is in its place: whoever waits for it then finds that the name
    // stands for another file, and opens that one.
    if (!replacement->Commit())
        return FailAs("the archive cannot be replaced");
    if (written)
        KeepIndex(archivePath, *written, std::move(replacementIndex));
    file.reset();
    return true;
}

bool CPackageArchive::PrepareCompaction()
{
    if (!IsOpen() || mode != Mode::read || index->Header() != HeaderState::whole)
        return Fail("no archive is open for reading");
    if (newTexts.empty())
        return Fail("nothing is to be changed");
    if (!ReadAll())
        return false;
    auto unlocked = Files().Open(archivePath, platform::OpenMode::read);
    if (!unlocked || unlocked->Stamp() != stamp)
        return Fail("the archive was replaced or deleted by another program");
    file = std::move(unlocked);
    return WriteReplacement();
}

bool CPackageArchive::CommitCompaction()
{
    auto locked = replacement ? Files().Open(archivePath, platform::OpenMode::readWrite) : nullptr;
    const bool isAsRead =
        locked && locked->Lock(platform::LockKind::exclusive, patience) && locked->Stamp() == stamp;
    if (isAsRead)
        file = std::move(locked);
    const bool done = isAsRead ? PutReplacement() : Fail("the archive has changed");
    Forget();
    return done;
}

}  // namespace archive
