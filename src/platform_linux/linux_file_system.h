// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxFileSystem: CFileSystem on system calls.
//
// A path longer than the kernel takes (4,095 bytes) fails as such; so does one with a zero byte. No call
// waits for a pipe or a device.
#pragma once

#include "platform/file_system.h"
#include "platform_linux/temp_folder.h"

namespace platform_linux
{

class CLinuxFileSystem final : public platform::CFileSystem
{
public:
    std::unique_ptr<platform::CFile> Open(const std::string& path, platform::OpenMode mode) override;
    std::optional<platform::FileFacts> FindFirstFile(const std::string& path) override;
    std::optional<platform::FileFacts> FindFirstFileAgain(const std::string& path,
                                                          const platform::FileFacts& known) override;
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
    std::string GetTempPath() override;
    std::optional<std::string> ResolveLink(const std::string& path) override;
    std::string LastError() override;

private:
    CTempFolder temp;
};

// CFileSystem::ReplaceFile and ReadWhole for the other services.
bool ReplaceBytes(const std::string& path, std::span<const std::byte> bytes);
std::optional<std::string> ReadAll(int fd, std::uint64_t most);

}  // namespace platform_linux
