// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFileSystem and CFile: what the program asks of the file system, and no more.
//
// Nothing throws. Every call says whether it succeeded; LastError gives the reason of this thread's latest
// failure. Links are followed unless a comment says otherwise. Implementations may be called from several
// threads; one CFile belongs to one thread at a time.
#pragma once

#include "platform/types.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace platform
{

enum class OpenMode {
    read,       // an existing file, for reading
    readWrite,  // an existing file, for reading and writing
    create,     // made when missing, emptied when present; reading and writing
    createNew,  // made; fails when the name is taken
};

enum class LockKind { shared, exclusive };

// Tells two states of a file apart: equal stamps mean that no writer which calls CFile::MarkChanged has
// touched the file in between.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t modifiedNanoseconds = 0;
    bool operator==(const FileStamp&) const = default;
};

// An open regular file. Closing happens in the destructor and releases the lock.
class CFile
{
public:
    virtual ~CFile() = default;

    // Reads up to buffer.size() bytes from `offset`; fewer only at the end of the file or on failure.
    virtual std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) = 0;
    // Writes all bytes at `offset`, growing the file as needed; false when any of them could not be written.
    virtual bool WriteAt(std::uint64_t offset, std::span<const std::byte> bytes) = 0;
    // Cuts or extends (with zeros) the file to `size` bytes.
    virtual bool Truncate(std::uint64_t size) = 0;
    // Returns when the file's bytes are on the medium.
    virtual bool Sync() = 0;
    virtual std::optional<FileStamp> Stamp() = 0;
    // Sets the modification time to the exact present, always later than it was, so that two states of one
    // size never carry one stamp.
    virtual bool MarkChanged() = 0;
    // Takes an advisory lock on the file, waiting up to `patienceMilliseconds`; true as well where the file
    // system knows no locks. False when another holder kept it.
    virtual bool Lock(LockKind kind, int patienceMilliseconds) = 0;
    // Whether `path` still names this very file (it may have been replaced since it was opened).
    virtual bool IsStill(const std::string& path) = 0;
    // Tells the system that the given range will be wanted soon.
    virtual void WillNeed(std::uint64_t offset, std::uint64_t length) = 0;
    // Tells the system to read nothing from the medium beyond what ReadAt and WillNeed ask for.
    virtual void ReadOnlyWhatIsAsked() {}
    // A short text that goes with the file and is not part of its bytes or stamp; `name` is of letters and
    // dashes. Copies may carry it along and others may change it, so it is a hint. False, or empty, where the
    // file system keeps none.
    virtual bool KeepNote(const std::string& name, const std::string& text) = 0;
    virtual std::string Note(const std::string& name) = 0;
};

// A file that is written out of sight to take the place of another once it is whole. Nothing is left of one
// that was not committed.
class CReplacement
{
public:
    virtual ~CReplacement() = default;
    // Empty at first, and best written from its beginning to its end. It lives as long as the replacement.
    virtual CFile& File() = 0;
    // At any instant, the path holds the old bytes or all of the new ones, which are on the medium before the
    // old ones go. To be called once, after the last write.
    virtual bool Commit() = 0;
};

// An advisory lock that ends with the object, or with the process.
class CLock
{
public:
    virtual ~CLock() = default;
};

struct FileFacts {
    bool isFolder = false;
    bool isRegular = false;  // neither folder, device, socket nor pipe
    std::uint64_t size = 0;
    // Creation time: what the file system or the program recorded, else the birth time, else lastWriteTime.
    FileTime creationTime = 0;
    FileTime lastWriteTime = 0;
    // When the file or something noted at it last changed; 0 when a later change might show the same time.
    FileTime changeTime = 0;
};

struct FolderEntry {
    std::string name;        // never "." or ".."
    bool isFolder = false;   // also a link to a folder
    bool isRegular = false;  // also a link to a regular file
    bool isLink = false;
};

// Reads a folder in pieces, so that the caller can do something else in between.
class CFolderReader
{
public:
    virtual ~CFolderReader() = default;
    // Appends up to `most` further entries, in no order. False when the folder is at its end.
    virtual bool Read(std::size_t most, std::vector<FolderEntry>& entries) = 0;
};

enum class Presence {
    present,
    missing,      // the place where it should be can be read, and it is not there
    unreachable,  // cannot be told now: no permission, a failing medium, a volume that is not mounted
};

class CFileSystem
{
public:
    virtual ~CFileSystem() = default;

    // Null when the file cannot be opened in that way or is not a regular file.
    virtual std::unique_ptr<CFile> Open(const std::string& path, OpenMode mode) = 0;
    // The facts of what `path` names, or nothing when it is not there or cannot be looked at.
    virtual std::optional<FileFacts> FindFirstFile(const std::string& path) = 0;
    // The same, sooner: `known` is what FindFirstFile said of the path before.
    virtual std::optional<FileFacts> FindFirstFileAgain(const std::string& path, const FileFacts& known)
    {
        (void)known;
        return FindFirstFile(path);
    }
    virtual Presence FindPresence(const std::string& path) = 0;
    // Null when the folder cannot be listed.
    virtual std::unique_ptr<CFolderReader> ReadFolder(const std::string& path) = 0;

    // One level; false when it cannot be made or something of that name is there.
    virtual bool CreateDirectory(const std::string& path) = 0;
    // Copies the bytes and the modification time. An existing target is replaced in one step: at any instant
    // it holds its old bytes or all of the new ones, and the new ones are on the medium before it goes.
    virtual bool CopyFile(const std::string& source, const std::string& target) = 0;
    // Deletes a file, never a folder.
    virtual bool DeleteFile(const std::string& path) = 0;
    // Renames within one file system; an existing target file is replaced in one step.
    virtual bool MoveFile(const std::string& source, const std::string& target) = 0;
    // As MoveFile, but fails when the target's name is taken.
    virtual bool MoveFileNoReplace(const std::string& source, const std::string& target) = 0;
    // Writes `bytes` to `path` so that it holds its old bytes or all of the new ones, whatever happens.
    // A link is followed: what it points to is replaced.
    virtual bool ReplaceFile(const std::string& path, std::span<const std::byte> bytes) = 0;
    // The same, piece by piece; null when nothing can be put in that place. What belongs to the old file and
    // not to its bytes (mode, owner, creation time) stays as far as can be, but for the notes.
    virtual std::unique_ptr<CReplacement> BeginReplacement(const std::string& path) = 0;
    // The whole file, or nothing when it cannot be read or is longer than `most` bytes.
    virtual std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t most) = 0;

    // Sets the times given (0 leaves one as it is).
    virtual bool SetFileTime(const std::string& path, FileTime creation, FileTime lastWrite) = 0;
    // Makes the file at `path` if it is missing and takes an exclusive lock on it; null when another holder
    // kept it for `patienceMilliseconds` or the file cannot be made.
    virtual std::unique_ptr<CLock> LockFile(const std::string& path, int patienceMilliseconds) = 0;

    // A folder of this process alone (mode 0700), without a trailing separator; made on first use and
    // removed at the end of the process. Empty when none can be made.
    virtual std::string GetTempPath() = 0;
    // The path with every link resolved; nothing when it leads nowhere or in a circle.
    virtual std::optional<std::string> ResolveLink(const std::string& path) = 0;
    // Why this thread's latest call failed, in plain words ("Permission denied").
    virtual std::string LastError() = 0;
};

}  // namespace platform
