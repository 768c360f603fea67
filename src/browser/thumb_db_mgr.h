// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CThumbDbMgr: which thumbnail archive belongs to which folder.
//
// The map lives in "DbMgr.dmf" (layout: docs/formats/thumbnail-manager.md) in the store's folder and is read
// once by Load. Several processes may use one store: every operation that writes the manager file does so
// under the store's lock and first takes in what others have changed, so that nobody's records are lost and
// no two folders get one archive. The file is never half-written: it is appended to with the count written
// last, or replaced as a whole.
//
// Folders are compared byte for byte. A trailing separator of a folder argument is ignored but where a
// comment says otherwise. One object, one thread. Failures are silent: a store that cannot be used answers
// with nothing.
#pragma once

#include "platform/file_system.h"

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace browser
{

struct ThumbDbRecord {
    std::string folderPath;
    std::string dbFileName;  // a bare name such as "Tmb0.db"
    bool operator==(const ThumbDbRecord&) const = default;
};

class CThumbDbMgr
{
public:
    // `folder` holds the store's files; empty for no store.
    explicit CThumbDbMgr(std::string folder = {}) : dbFolder(std::move(folder)) {}

    // Reads the manager file, making it (and the folder) when missing. 1 when it was made or at least one
    // record was read, else 0.
    int Load();
    // The archive's name of a folder, or null. Valid until the next call that is not const.
    const std::string* GetDbFileForFolder(const std::string& folder) const;
    // The same, making a record when there is none. Null for an empty folder, without a store, and when
    // another process kept the store's lock.
    const std::string* AddFolder(const std::string& folder);
    // The full path of the archive for the file's folder goes to `path` (may be null); its length is
    // returned, 0 when the folder has no record (`path` is then left alone).
    std::size_t GetDbPathForFile(const std::string& file, std::string* path) const;
    // Forgets the folder and deletes its archive; 1 when there was a record. The manager file learns of it
    // at the next Save.
    int RemoveFolder(const std::string& folder);
    // Gives the records of the old path the new one exactly as it is written. The manager file learns of it
    // at the next Save. 0 only for an empty argument.
    int RenameFolder(const std::string& oldFolder, const std::string& newFolder);
    // The folder was moved or renamed, and what is below it with it: the records follow, in the manager file
    // at once. What was recorded of the new path before is forgotten. False when that cannot be written.
    bool FolderMoved(const std::string& oldFolder, const std::string& newFolder);
    // With `write`, rewrites the manager file without the folders that no longer exist and deletes their
    // archives; folders that merely cannot be reached now are kept. The list is empty afterwards. Always 1.
    int Save(bool write);
    void Clear();

    const std::list<ThumbDbRecord>& Records() const { return records; }
    const std::string& DbFolder() const { return dbFolder; }
    // Held around work on the archives that must not overlap with other processes; null when it is not to be
    // had within the patience. Not recursive: AddFolder, RemoveFolder and Save take it themselves.
    std::unique_ptr<platform::CLock> LockStore() const;
    // How long to wait for another process that holds the store or one of its archives; 10 s unless told.
    void SetPatience(int milliseconds) { patience = milliseconds; }
    int Patience() const { return patience; }

private:
    std::string ManagerPath() const;
    bool CreateManagerFile() const;
    void TakeInChanges();
    void ForgetFile();
    bool AppendToFile(const ThumbDbRecord& record);
    bool ReplaceFile(const std::list<ThumbDbRecord>& list);
    std::string NextFreeName();

    std::string dbFolder;
    std::list<ThumbDbRecord> records;
    int nextIndex = 0;
    int patience = 10000;

    // What the manager file held when it was last read or written.
    std::optional<platform::FileStamp> knownStamp;
    std::vector<ThumbDbRecord> fileRecords;
    std::uint64_t fileEnd = 4;  // behind the last whole record
    bool fileIsPlain = true;    // whether every record in it was taken as it stands
};

}  // namespace browser
