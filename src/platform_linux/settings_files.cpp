// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/settings_files.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_lock.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"

namespace platform_linux
{

namespace
{

constexpr int kPatience = 5000;  // ms
constexpr std::size_t kMostCached = 32;
constexpr int kMostTries = 1000;

// The file opened for a change. `made` tells that it was not there before.
CHandle OpenForChange(const std::string& path, bool& made)
{
    CHandle handle = OpenRegular(path, platform::OpenMode::readWrite);
    made = !handle.IsOpen() && LastFailure() == ENOENT;
    if (made)
        handle = OpenRegular(path, platform::OpenMode::createNew);
    return handle;
}

bool ChangeLocked(const std::string& path, int fd, const std::function<bool(CIniText&)>& change)
{
    std::optional<std::string> bytes = ReadAll(fd, CIniText::kMostBytes);
    if (!bytes)
        return false;
    if (!CIniText::IsUsable(*bytes))
        return Fail(EINVAL);
    CIniText text(*bytes);
    if (!change(text))
        return Fail(EINVAL);
    return text.Text() == *bytes || ReplaceBytes(path, std::as_bytes(std::span(text.Text())));
}

}  // namespace

CSettingsFiles::Stamp CSettingsFiles::StampOf(const struct stat& facts)
{
    const std::int64_t changed = facts.st_ctim.tv_sec * 1'000'000'000 + facts.st_ctim.tv_nsec;
    return {facts.st_dev, facts.st_ino, facts.st_size, ModifiedNanoseconds(facts), changed};
}

std::shared_ptr<const CIniText> CSettingsFiles::Read(const std::string& path)
{
    struct stat facts {
    };
    if (stat(Native(path), &facts) != 0) {
        Fail();
        return nullptr;
    }
    const std::lock_guard guard(mutex);
    const auto known = cache.find(path);
    if (known != cache.end() && known->second.stamp == StampOf(facts))
        return known->second.text;
    const CHandle handle = OpenRegular(path, platform::OpenMode::read);
    if (!handle.IsOpen() || fstat(handle.Get(), &facts) != 0)
        return nullptr;
    std::optional<std::string> bytes = ReadAll(handle.Get(), CIniText::kMostBytes);
    if (!bytes || !CIniText::IsUsable(*bytes))
        return nullptr;
    if (cache.size() >= kMostCached)
        cache.clear();
    Parsed& parsed = cache[path];
    parsed = {StampOf(facts), std::make_shared<CIniText>(std::move(*bytes))};
    return parsed.text;
}

bool CSettingsFiles::Change(const std::string& path, const std::function<bool(CIniText&)>& change)
{
    const std::optional<std::string> end = FollowLinks(path);
    for (int i = 0; end && i < kMostTries; ++i) {
        bool made = false;
        const CHandle handle = OpenForChange(*end, made);
        if (!handle.IsOpen()) {
            if (LastFailure() == EEXIST)
                continue;  // somebody else made it just now
            return false;
        }
        if (!LockDescriptor(handle.Get(), platform::LockKind::exclusive, kPatience))
            return false;
        if (!NamesDescriptor(*end, handle.Get()))
            continue;
        if (ChangeLocked(*end, handle.Get(), change))
            return true;
        const int reason = LastFailure();
        struct stat facts {
        };
        if (made && fstat(handle.Get(), &facts) == 0 && facts.st_size == 0)
            (void)unlink(end->c_str());
        return Fail(reason);
    }
    return false;
}

}  // namespace platform_linux
