// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/thumb_db_mgr.h"

#include "browser/file_names.h"
#include "browser/manager_file.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>
#include <unordered_set>

namespace browser
{

namespace
{

constexpr std::string_view kManagerFile = "DbMgr.dmf";
constexpr std::string_view kScratchFile = "DbMgr1.dmf";
constexpr std::string_view kLockFile = "DbMgr.lock";
// Far beyond any honest store: a million folders.
constexpr std::uint64_t kLongestManagerFile = 256ULL << 20;

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

std::string WithoutTrailingSeparator(const std::string& folder)
{
    return folder.size() > 1 && folder.ends_with('/') ? folder.substr(0, folder.size() - 1) : folder;
}

std::span<const std::byte> Bytes(const std::string& text)
{
    return std::as_bytes(std::span(text));
}

std::unordered_set<std::string> Keys(const std::vector<ThumbDbRecord>& records)
{
    std::unordered_set<std::string> keys;
    for (const ThumbDbRecord& record : records) {
        keys.insert(EncodeRecord(record));
    }
    return keys;
}

}  // namespace

std::string CThumbDbMgr::ManagerPath() const
{
    return fmt::format("{}/{}", dbFolder, kManagerFile);
}

std::unique_ptr<platform::CLock> CThumbDbMgr::LockStore() const
{
    return dbFolder.empty() ? nullptr : Files().LockFile(fmt::format("{}/{}", dbFolder, kLockFile), patience);
}

int CThumbDbMgr::Load()
{
    if (dbFolder.empty()) {
        return 0;
    }
    Files().CreateDirectory(dbFolder);
    platform::Os().utility->OutputDebugString(fmt::format("DB Manager Path : {}\n", dbFolder));
    const bool created = !Files().FindFirstFile(ManagerPath()) && CreateManagerFile();
    TakeInChanges();
    return created || !records.empty() ? 1 : 0;
}

// Under the lock: another process that starts at this moment may already have added to the file.
bool CThumbDbMgr::CreateManagerFile() const
{
    const auto lock = LockStore();
    const auto file = lock ? Files().Open(ManagerPath(), platform::OpenMode::createNew) : nullptr;
    return file && file->WriteAt(0, Bytes(EncodeCount(0)));
}

// Brings the list up to what other processes made of the file since it was last read: their new records are
// added, those they dropped go. Changes of this object that the file does not have yet stay.
void CThumbDbMgr::TakeInChanges()
{
    const auto file = Files().Open(ManagerPath(), platform::OpenMode::read);
    const auto stamp = file ? file->Stamp() : std::nullopt;
    if (!stamp) {
        ForgetFile();
        return;
    }
    if (stamp == knownStamp || stamp->size > kLongestManagerFile) {
        return;
    }
    std::string bytes(stamp->size, '\0');
    bytes.resize(file->ReadAt(0, std::as_writable_bytes(std::span(bytes))));
    ManagerFileContents contents = DecodeManagerFile(bytes);

    const auto before = Keys(fileRecords);
    const auto now = Keys(contents.records);
    records.remove_if([&](const ThumbDbRecord& record) {
        const std::string key = EncodeRecord(record);
        return before.contains(key) && !now.contains(key);
    });
    for (const ThumbDbRecord& record : contents.records) {
        if (!before.contains(EncodeRecord(record))) {
            records.push_back(record);
        }
    }
    fileRecords = std::move(contents.records);
    fileEnd = contents.end;
    fileIsPlain = contents.plain;
    knownStamp = stamp;
}

const std::string* CThumbDbMgr::GetDbFileForFolder(const std::string& folder) const
{
    const std::string key = WithoutTrailingSeparator(folder);
    const auto found = std::ranges::find(records, key, &ThumbDbRecord::folderPath);
    return key.empty() || found == records.end() ? nullptr : &found->dbFileName;
}

std::string CThumbDbMgr::NextFreeName()
{
    std::unordered_set<std::string_view> taken;
    for (const ThumbDbRecord& record : records) {
        taken.insert(record.dbFileName);
    }
    std::string name;
    do {
        name = fmt::format("Tmb{}.db", nextIndex++);
    } while (taken.contains(name) || Files().FindFirstFile(JoinPath(dbFolder, name)));
    return name;
}

const std::string* CThumbDbMgr::AddFolder(const std::string& folder)
{
    const std::string key = WithoutTrailingSeparator(folder);
    if (key.empty() || dbFolder.empty()) {
        return nullptr;
    }
    const auto file = Files().Open(ManagerPath(), platform::OpenMode::read);
    const bool unchanged = knownStamp && file && file->Stamp() == knownStamp;
    if (const std::string* name = unchanged ? GetDbFileForFolder(key) : nullptr) {
        return name;
    }
    const auto lock = LockStore();
    if (!lock) {
        return nullptr;
    }
    TakeInChanges();
    if (const std::string* name = GetDbFileForFolder(key)) {
        return name;
    }
    const ThumbDbRecord record{key, NextFreeName()};
    if (EncodeRecord(record).empty()) {
        return nullptr;
    }
    records.push_back(record);
    AppendToFile(record);
    return &records.back().dbFileName;
}

// The file is appended to when it then holds just what the list holds; otherwise it is replaced. When neither
// works the record lives in memory until the next Save.
bool CThumbDbMgr::AppendToFile(const ThumbDbRecord& record)
{
    const bool onlyOneMore = fileIsPlain && records.size() == fileRecords.size() + 1 &&
                             std::equal(fileRecords.begin(), fileRecords.end(), records.begin());
    if (!onlyOneMore) {
        return ReplaceFile(records);
    }
    auto file = Files().Open(ManagerPath(), platform::OpenMode::readWrite);
    if (!file) {
        file = Files().Open(ManagerPath(), platform::OpenMode::create);
    }
    const std::string bytes = EncodeRecord(record);
    if (!file || !file->WriteAt(fileEnd, Bytes(bytes)) ||
        !file->WriteAt(0, Bytes(EncodeCount(records.size())))) {
        return false;
    }
    fileEnd += bytes.size();
    fileRecords.push_back(record);
    file->Truncate(fileEnd);
    file->MarkChanged();
    knownStamp = file->Stamp();
    return true;
}

// Writes the list to the scratch file and puts that in the place of the manager file.
bool CThumbDbMgr::ReplaceFile(const std::list<ThumbDbRecord>& list)
{
    std::string bytes = EncodeCount(list.size());
    for (const ThumbDbRecord& record : list) {
        const std::string encoded = EncodeRecord(record);
        if (encoded.empty()) {
            return false;
        }
        bytes += encoded;
    }
    const std::string scratch = fmt::format("{}/{}", dbFolder, kScratchFile);
    auto file = Files().Open(scratch, platform::OpenMode::create);
    if (!file) {
        return false;
    }
    const bool written = file->WriteAt(0, Bytes(bytes)) && file->Sync() && file->MarkChanged();
    const auto stamp = file->Stamp();
    file.reset();
    if (!written || !Files().MoveFile(scratch, ManagerPath())) {
        Files().DeleteFile(scratch);
        return false;
    }
    fileRecords.assign(list.begin(), list.end());
    fileEnd = bytes.size();
    fileIsPlain = true;
    knownStamp = stamp;
    return true;
}

std::size_t CThumbDbMgr::GetDbPathForFile(const std::string& file, std::string* path) const
{
    const std::string* name = GetDbFileForFolder(std::string(FolderOf(file)));
    if (!name) {
        return 0;
    }
    std::string found = fmt::format("{}/{}", dbFolder, *name);
    const std::size_t length = found.size();
    if (path) {
        *path = std::move(found);
    }
    return length;
}

int CThumbDbMgr::RemoveFolder(const std::string& folder)
{
    const std::string key = WithoutTrailingSeparator(folder);
    const auto lock = LockStore();
    if (lock) {
        TakeInChanges();
    }
    const auto found = std::ranges::find(records, key, &ThumbDbRecord::folderPath);
    if (found == records.end()) {
        return 0;
    }
    if (!found->dbFileName.empty()) {
        Files().DeleteFile(JoinPath(dbFolder, found->dbFileName));
    }
    records.erase(found);
    return 1;
}

int CThumbDbMgr::RenameFolder(const std::string& oldFolder, const std::string& newFolder)
{
    if (oldFolder.empty() || newFolder.empty()) {
        return 0;
    }
    const std::string key = WithoutTrailingSeparator(oldFolder);
    for (ThumbDbRecord& record : records) {
        if (record.folderPath == key) {
            record.folderPath = newFolder;
        }
    }
    return 1;
}

bool CThumbDbMgr::FolderMoved(const std::string& oldFolder, const std::string& newFolder)
{
    const std::string from = WithoutTrailingSeparator(oldFolder);
    const std::string to = WithoutTrailingSeparator(newFolder);
    const auto lock = from.empty() || to.empty() ? nullptr : LockStore();
    if (!lock) {
        return false;
    }
    TakeInChanges();
    const auto isIn = [](const std::string& path, const std::string& folder) {
        return path == folder || path.starts_with(JoinPath(folder, ""));
    };
    const auto moves = [&](const ThumbDbRecord& record) { return isIn(record.folderPath, from); };
    if (std::ranges::none_of(records, moves)) {
        return true;
    }
    std::list<ThumbDbRecord> followed = records;
    std::vector<std::string> forgotten;
    followed.remove_if([&](const ThumbDbRecord& record) {
        const bool isOld = isIn(record.folderPath, to) && !moves(record);
        if (isOld) {
            forgotten.push_back(record.dbFileName);
        }
        return isOld;
    });
    for (ThumbDbRecord& record : followed) {
        if (moves(record)) {
            record.folderPath.replace(0, from.size(), to);
        }
    }
    if (!ReplaceFile(followed)) {
        return false;
    }
    records = std::move(followed);
    for (const std::string& name : forgotten) {
        Files().DeleteFile(JoinPath(dbFolder, name));
    }
    return true;
}

int CThumbDbMgr::Save(bool write)
{
    const auto lock = write ? LockStore() : nullptr;
    if (!lock) {
        Clear();
        return 1;
    }
    TakeInChanges();
    std::list<ThumbDbRecord> vanished;
    for (auto record = records.begin(); record != records.end();) {
        const auto next = std::next(record);
        if (Files().FindPresence(record->folderPath) == platform::Presence::missing) {
            vanished.splice(vanished.end(), records, record);
        }
        record = next;
    }
    if (ReplaceFile(records)) {
        for (const ThumbDbRecord& record : vanished) {
            Files().DeleteFile(JoinPath(dbFolder, record.dbFileName));
        }
    }
    Clear();
    return 1;
}

void CThumbDbMgr::Clear()
{
    records.clear();
    ForgetFile();
}

void CThumbDbMgr::ForgetFile()
{
    fileRecords.clear();
    fileEnd = 4;
    fileIsPlain = true;
    knownStamp.reset();
}

}  // namespace browser
