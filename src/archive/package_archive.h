// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPackageArchive: named members in one file, each one zlib stream, with times and three short texts.
//
// Members are never rewritten in place but for their deletion mark; texts and removals reach the file for
// good by compaction, which replaces it in one step. Byte layout: docs/formats/package.md.
//
// While it is open, the file is locked: shared when open for reading, else exclusive. A kill at any instant
// and a full disk leave the state before an operation or the one after it. Opening, finding and adding cost
// the same however many members there are, as long as this process saw the archive's latest state before;
// otherwise finding reads the records up to the one that it finds, and adding reads them all unless the one
// who changed the archive last could leave a note on the file (docs/decisions/0002-archive-index.md).
//
// One object, one thread, but for Abort. Nothing throws; every operation says whether it succeeded, and
// Error tells why not. Indexes of members hold until Close.
#pragma once

#include "archive/package_index.h"
#include "archive/package_record.h"
#include "platform/file_system.h"

#include <atomic>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace archive
{

class CDeflater;

// What a member records of its source besides the name.
struct SourceFacts {
    platform::FileTime creationTime = 0;
    platform::FileTime lastWriteTime = 0;
    std::uint64_t size = 0;
};

struct AddOptions {
    std::optional<SourceFacts> facts = {};  // none: those of the source's directory entry
    platform::FileTime thirdTime = 0;
    std::string timeStampText = {};
    bool keepFullName = false;    // the member is named with the whole path instead of its last part
    std::string memberName = {};  // when not empty, the member's name whatever the source's is
    std::string caption = {};
    std::string secondText = {};
};

// A member with its data as they are stored, on its way to another archive.
struct RawMember {
    PackageMember record;
    std::string data;
};

class CPackageArchive
{
public:
    enum class Mode { create = 1, read = 2, readWrite = 3 };

    CPackageArchive();
    // Closes without compacting.
    virtual ~CPackageArchive();
    CPackageArchive(const CPackageArchive&) = delete;
    CPackageArchive& operator=(const CPackageArchive&) = delete;

    // Closes what was open before. A file that is no archive opens without members, but cannot be changed.
    // Mode create empties a file that is there.
    bool Open(const std::string& path, Mode mode);
    // False when compaction failed; the file is then as it was before, and closed all the same.
    bool Close(bool compact);
    bool IsOpen() const { return file != nullptr; }
    // Whether the open file is no archive.
    bool IsForeign() const { return index && index->Header() == HeaderState::foreign; }

    // Fails in mode read, leaving the archive without the member.
    bool AddFile(const std::string& source, const AddOptions& options);

    // The first member of that name that is not deleted; letters A to Z match in either case.
    std::optional<std::size_t> Find(const std::string& name) const;
    // The same, byte for byte.
    std::optional<std::size_t> FindExact(const std::string& name) const;
    // Deleted members included; 0 when the archive cannot be read to its end.
    std::size_t Count() const;
    // `position` is below Count, or was found. The reference holds until Close.
    const PackageMember& Member(std::size_t position) const { return index->Member(position); }

    // Writes the member's data to a file of its name, replacing one that is there (and never what a link of
    // that name points to) once all of it is written. Fails for a name that would lead out of the folder.
    bool ExtractToFolder(std::size_t position, const std::string& folder);
    // `data` is empty after a failure.
    bool ExtractToMemory(std::size_t position, std::string& data);
    // Whether the latest extraction failed for what is stored, and would fail again.
    bool IsDamaged() const { return damaged; }

    // Needs mode readWrite. A member that is deleted already counts as success.
    bool Remove(std::size_t position);
    // In memory; reaches the file by Close with compaction. A missing text is cleared.
    bool SetTexts(std::size_t position, const std::optional<std::string>& caption,
                  const std::optional<std::string>& timeStampText,
                  const std::optional<std::string>& secondText);

    // The same for the name, which must not be empty. Two members may come to have one name: the first is
    // found.
    bool SetName(std::size_t position, const std::string& name);

    // Close with compaction in two parts, for an archive that was opened for reading and given new names or
    // texts. The first does the long work and lets go of the lock. The second fails when somebody has changed
    // the archive in between; it closes the archive in any case.
    bool PrepareCompaction();
    bool CommitCompaction();

    std::optional<RawMember> TakeRaw(std::size_t position);
    // Appends the member as it is, as AddFile.
    bool AddRaw(const RawMember& member);

    // Stops the compression or decompression under way, and all later ones until the next Open. May be
    // called from any thread.
    void Abort() { aborted = true; }
    // How long Open waits for another holder of the archive; 10 s unless told.
    void SetPatience(int milliseconds) { patience = milliseconds; }
    // Why the latest failed operation failed, in plain words.
    const std::string& Error() const { return error; }

protected:
    // How much of the file being read is done, 0 to 100.
    virtual void Progress(int percent);
    // "Success", "User Abort" or "Zlib Error" at the end of each compression and decompression.
    virtual void Result(const std::string& text);

private:
    enum class Opening { done, failed, again };
    Opening OpenLocked(const std::string& path, Mode wanted);
    bool BeginIndex();
    bool Holds(std::size_t position) const;
    bool Fail(const std::string& reason);
    bool FailAs(const std::string& what);
    bool MayChange();
    bool FindTail();
    bool ReadAll();
    void KeepState();
    bool MayExtract(std::size_t position);
    bool FailExtraction(int result, bool unreadable);
    bool PrepareHeader();
    bool WriteCount(std::uint32_t count);
    std::unique_ptr<platform::CFile> OpenSource(const std::string& source, const AddOptions& options,
                                                PackageMember& member);
    bool WriteMember(platform::CFile& source, PackageMember& member);
    bool BeginAdding();
    bool EndAdding(bool written, PackageMember member);
    bool NeedsCompaction() const;
    bool Compact();
    bool WriteReplacement();
    bool PutReplacement();
    void Forget();

    std::unique_ptr<platform::CFile> file;
    std::string archivePath;
    Mode mode = Mode::read;
    std::unique_ptr<CPackageIndex> index;
    platform::FileStamp stamp;       // of the file as it was opened
    bool changed = false;            // the file, since it was opened
    bool damaged = false;            // the member of the latest extraction
    std::set<std::size_t> newTexts;  // members whose name or texts in memory differ from the file's
    // The compacted archive, when it is written and not yet in its place.
    std::unique_ptr<platform::CReplacement> replacement;
    std::unique_ptr<CPackageIndex> replacementIndex;
    std::unique_ptr<CDeflater> deflater;
    std::atomic<bool> aborted = false;
    int patience = 10'000;
    std::string error;
};

}  // namespace archive
