// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_file_system.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace support
{
namespace
{

constexpr std::int64_t kUnixEpoch = 116'444'736'000'000'000;  // as a FileTime

class CTestFile : public platform::CFile
{
public:
    explicit CTestFile(int opened) : descriptor(opened) {}
    ~CTestFile() override { close(descriptor); }

    std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        const ssize_t got = pread(descriptor, buffer.data(), buffer.size(), static_cast<off_t>(offset));
        return got < 0 ? 0 : static_cast<std::size_t>(got);
    }
    bool WriteAt(std::uint64_t offset, std::span<const std::byte> bytes) override
    {
        return pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset)) ==
               static_cast<ssize_t>(bytes.size());
    }
    bool Truncate(std::uint64_t size) override
    {
        return ftruncate(descriptor, static_cast<off_t>(size)) == 0;
    }
    bool Sync() override { return true; }
    std::optional<platform::FileStamp> Stamp() override
    {
        struct stat facts = {};
        if (fstat(descriptor, &facts) != 0)
            return std::nullopt;
        return platform::FileStamp{facts.st_dev, facts.st_ino, static_cast<std::uint64_t>(facts.st_size),
                                   facts.st_mtim.tv_sec * 1'000'000'000 + facts.st_mtim.tv_nsec};
    }
    bool MarkChanged() override
    {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        const std::int64_t present = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
        const std::int64_t later = std::max(present, Stamp()->modifiedNanoseconds + 1);
        const timespec times[2] = {{0, UTIME_OMIT}, {later / 1'000'000'000, later % 1'000'000'000}};
        return futimens(descriptor, times) == 0;
    }
    bool Lock(platform::LockKind kind, int patienceMilliseconds) override
    {
        const int wish = (kind == platform::LockKind::shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(patienceMilliseconds);
        while (flock(descriptor, wish) != 0) {
            if (std::chrono::steady_clock::now() >= end)
                return false;
            std::this_thread::yield();
        }
        return true;
    }
    bool IsStill(const std::string& path) override
    {
        struct stat mine = {};
        struct stat named = {};
        return fstat(descriptor, &mine) == 0 && stat(path.c_str(), &named) == 0 &&
               mine.st_ino == named.st_ino && mine.st_dev == named.st_dev;
    }
    void WillNeed(std::uint64_t, std::uint64_t) override {}
    bool KeepNote(const std::string& name, const std::string& text) override
    {
        Notes()[{Stamp()->inode, name}] = text;
        return true;
    }
    std::string Note(const std::string& name) override { return Notes()[{Stamp()->inode, name}]; }

private:
    static std::map<std::pair<std::uint64_t, std::string>, std::string>& Notes()
    {
        static std::map<std::pair<std::uint64_t, std::string>, std::string> notes;
        return notes;
    }
    int descriptor;
};

class CTestLock : public platform::CLock
{
public:
    explicit CTestLock(std::unique_ptr<platform::CFile> lockedFile) : file(std::move(lockedFile)) {}

private:
    std::unique_ptr<platform::CFile> file;
};

class CTestReplacement : public platform::CReplacement
{
public:
    CTestReplacement(std::unique_ptr<platform::CFile> opened, const std::string& path)
        : file(std::move(opened)), target(path)
    {
    }
    ~CTestReplacement() override { unlink((target + ".new").c_str()); }
    platform::CFile& File() override { return *file; }
    bool Commit() override { return rename((target + ".new").c_str(), target.c_str()) == 0; }

private:
    std::unique_ptr<platform::CFile> file;
    std::string target;
};

class CTestFolderReader : public platform::CFolderReader
{
public:
    explicit CTestFolderReader(const std::string& path) : position(path, failure) {}

    bool Opened() const { return !failure; }
    bool Read(std::size_t most, std::vector<platform::FolderEntry>& entries) override
    {
        for (; most > 0 && position != fs::directory_iterator(); --most, position.increment(failure)) {
            std::error_code dangling;
            entries.push_back({position->path().filename().string(), position->is_directory(dangling),
                               position->is_regular_file(dangling), position->is_symlink(dangling)});
        }
        return position != fs::directory_iterator();
    }

private:
    std::error_code failure;
    fs::directory_iterator position;
};

bool Done(const std::error_code& failure)
{
    if (failure)
        errno = failure.value();
    return !failure;
}

}  // namespace

std::unique_ptr<platform::CFile> CTestFileSystem::Open(const std::string& path, platform::OpenMode mode)
{
    static constexpr int kFlags[] = {O_RDONLY, O_RDWR, O_RDWR | O_CREAT | O_TRUNC, O_RDWR | O_CREAT | O_EXCL};
    const int descriptor = open(path.c_str(), kFlags[static_cast<int>(mode)] | O_CLOEXEC | O_NONBLOCK, 0600);
    if (descriptor < 0)
        return nullptr;
    auto file = std::make_unique<CTestFile>(descriptor);
    struct stat facts = {};
    return fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode) ? std::move(file) : nullptr;
}

std::optional<platform::FileFacts> CTestFileSystem::FindFirstFile(const std::string& path)
{
    struct stat facts = {};
    if (stat(path.c_str(), &facts) != 0)
        return std::nullopt;
    const std::int64_t modified =
        facts.st_mtim.tv_sec * 10'000'000 + facts.st_mtim.tv_nsec / 100 + kUnixEpoch;
    const auto recorded = creationTimes.find(path);
    return platform::FileFacts{
        S_ISDIR(facts.st_mode), S_ISREG(facts.st_mode), static_cast<std::uint64_t>(facts.st_size),
        recorded == creationTimes.end() ? static_cast<platform::FileTime>(modified) : recorded->second,
        static_cast<platform::FileTime>(modified)};
}

platform::Presence CTestFileSystem::FindPresence(const std::string& path)
{
    struct stat facts = {};
    if (lstat(path.c_str(), &facts) == 0)
        return platform::Presence::present;
    return errno == ENOENT || errno == ENOTDIR ? platform::Presence::missing
                                               : platform::Presence::unreachable;
}

std::unique_ptr<platform::CFolderReader> CTestFileSystem::ReadFolder(const std::string& path)
{
    auto reader = std::make_unique<CTestFolderReader>(path);
    return reader->Opened() ? std::move(reader) : nullptr;
}

bool CTestFileSystem::CreateDirectory(const std::string& path)
{
    return mkdir(path.c_str(), 0700) == 0;
}

bool CTestFileSystem::CopyFile(const std::string& source, const std::string& target)
{
    const std::string beside = target + ".copy";
    std::error_code failure;
    fs::copy_file(source, beside, fs::copy_options::overwrite_existing, failure);
    struct stat facts = {};
    if (!Done(failure) || stat(source.c_str(), &facts) != 0)
        return false;
    const timespec times[2] = {facts.st_atim, facts.st_mtim};
    return utimensat(AT_FDCWD, beside.c_str(), times, 0) == 0 && MoveFile(beside, target);
}

bool CTestFileSystem::DeleteFile(const std::string& path)
{
    return unlink(path.c_str()) == 0;
}

bool CTestFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    return rename(source.c_str(), target.c_str()) == 0;
}

bool CTestFileSystem::MoveFileNoReplace(const std::string& source, const std::string& target)
{
    return renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0;
}

bool CTestFileSystem::ReplaceFile(const std::string& path, std::span<const std::byte> bytes)
{
    const auto replacement = BeginReplacement(path);
    return replacement && replacement->File().WriteAt(0, bytes) && replacement->Commit();
}

std::unique_ptr<platform::CReplacement> CTestFileSystem::BeginReplacement(const std::string& path)
{
    const std::string place = ResolveLink(path).value_or(path);
    auto file = Open(place + ".new", platform::OpenMode::create);
    return file ? std::make_unique<CTestReplacement>(std::move(file), place) : nullptr;
}

std::optional<std::string> CTestFileSystem::ReadWhole(const std::string& path, std::uint64_t most)
{
    const auto file = Open(path, platform::OpenMode::read);
    if (!file || file->Stamp()->size > most)
        return std::nullopt;
    return ReadBytes(path);
}

bool CTestFileSystem::SetFileTime(const std::string& path, platform::FileTime creation,
                                  platform::FileTime lastWrite)
{
    if (creation != 0)
        creationTimes[path] = creation;
    if (lastWrite == 0)
        return true;
    const std::int64_t steps = static_cast<std::int64_t>(lastWrite) - kUnixEpoch;
    const timespec times[2] = {{0, UTIME_OMIT}, {steps / 10'000'000, steps % 10'000'000 * 100}};
    return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0;
}

std::unique_ptr<platform::CLock> CTestFileSystem::LockFile(const std::string& path, int patienceMilliseconds)
{
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return nullptr;
    auto file = std::make_unique<CTestFile>(descriptor);
    if (!file->Lock(platform::LockKind::exclusive, patienceMilliseconds))
        return nullptr;
    return std::make_unique<CTestLock>(std::move(file));
}

std::optional<std::string> CTestFileSystem::ResolveLink(const std::string& path)
{
    std::error_code failure;
    const fs::path resolved = fs::canonical(path, failure);
    return failure ? std::nullopt : std::optional(resolved.string());
}

std::string CTestFileSystem::LastError()
{
    return std::strerror(errno);
}

}  // namespace support
