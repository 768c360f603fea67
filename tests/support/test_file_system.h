// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTestFileSystem: plain files for the tests of the logic, which link without the real implementation.
//
// It keeps the contract of platform::CFileSystem as far as tests need it: real files, real locks, no
// durability (Sync does nothing), creation times and notes held in memory.
#pragma once

#include "platform/file_system.h"
#include "support/temp_folder.h"

#include <map>

namespace support
{

class CTestFileSystem : public platform::CFileSystem
{
public:
    std::unique_ptr<platform::CFile> Open(const std::string& path, platform::OpenMode mode) override;
    std::optional<platform::FileFacts> FindFirstFile(const std::string& path) override;
    platform::Presence FindPresence(const std::string& path) override;
    std::unique_ptr<platform::CFolderReader> ReadFolder(const std::string& path) override;
    bool CreateDirectory(const std::string& path) override;
    bool CopyFile(const std::string& source, const std::string& target) override;
    bool DeleteFile(const std::string& path) override;
    bool MoveFile(const std::string& source, const std::string& target) override;
    bool MoveFileNoReplace(const std::string& source, const std::string& target) override;
    bool ReplaceFile(const std::string& path, std::span<const std::byte> bytes) override;
    std::unique_ptr<platform::CReplacement> BeginReplacement(const std::string& path) override;
    std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t most) override;
    bool SetFileTime(const std::string& path, platform::FileTime creation,
                     platform::FileTime lastWrite) override;
    std::unique_ptr<platform::CLock> LockFile(const std::string& path, int patienceMilliseconds) override;
    std::string GetTempPath() override { return temporary.Path(); }
    std::optional<std::string> ResolveLink(const std::string& path) override;
    std::string LastError() override;

private:
    CTempFolder temporary;
    std::map<std::string, platform::FileTime> creationTimes;
};

}  // namespace support
