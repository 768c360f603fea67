// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/trash.h"

#include "platform_linux/base_folders.h"
#include "platform_linux/failure.h"
#include "platform_linux/file_replacement.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"
#include "platform_linux/volumes.h"

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

constexpr std::size_t kMostNameBytes = 200;  // leaves room for a number and ".trashinfo" within 255
constexpr int kMostNames = 10'000;

struct Trash {
    std::string folder;
    std::string pathBase;  // what the paths written down are relative to; empty for absolute ones
};

std::string PercentEncoded(std::string_view path)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    constexpr std::string_view kPlain = "-._~/";
    std::string result;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isAlnum = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (isAlnum || kPlain.find(c) != kPlain.npos)
            result += c;
        else
            result += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return result;
}

std::string LocalNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local));
}

// An own folder, not a link, that nobody else may write to; made when missing.
bool MakeOwn(const std::string& folder)
{
    struct stat facts {
    };
    if (mkdir(Native(folder), 0700) != 0 && errno != EEXIST)
        return Fail();
    return (lstat(Native(folder), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == geteuid() &&
            (facts.st_mode & 022) == 0) ||
           Fail(EACCES);
}

// The trash of the volume mounted at `top`.
std::optional<std::string> VolumeTrash(const std::string& top)
{
    const std::string user = std::to_string(geteuid());
    const std::string shared = Join(top, ".Trash");
    struct stat facts {
    };
    if (lstat(Native(shared), &facts) == 0 && S_ISDIR(facts.st_mode) && (facts.st_mode & S_ISVTX) != 0 &&
        MakeOwn(Join(shared, user)))
        return Join(shared, user);
    std::string own = Join(top, ".Trash-" + user);
    return MakeOwn(own) ? std::optional(own) : std::nullopt;
}

std::optional<Trash> TrashFor(const std::string& path)
{
    const std::string data = DataFolder();
    const std::string home = data.empty() ? "" : Join(data, "Trash");
    const std::string top = MountPointOf(ParentOf(path));
    if (!home.empty() && MakeFolders(home)) {
        CLinuxFileSystem files;
        if (MountPointOf(files.ResolveLink(home).value_or(home)) == top)
            return Trash{home, ""};
    }
    std::optional<std::string> folder = VolumeTrash(top);
    return folder ? std::optional(Trash{*folder, top}) : std::nullopt;
}

// `name` for the trash: cut between characters when too long, and numbered from the second try on.
std::string NameInTrash(std::string name, int number)
{
    if (name.size() > kMostNameBytes) {
        std::size_t end = kMostNameBytes;
        while (end > kMostNameBytes - 4 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80)
            --end;
        name.resize(end);
    }
    return number == 1 ? name : name + '.' + std::to_string(number);
}

bool WriteInfo(const std::string& file, const std::string& path)
{
    const CHandle info = OpenRegular(file, platform::OpenMode::createNew);
    const std::string text =
        "[Trash Info]\nPath=" + PercentEncoded(path) + "\nDeletionDate=" + LocalNow() + '\n';
    if (!info.IsOpen())
        return false;
    if (WriteAll(info.Get(), std::as_bytes(std::span(text))))
        return true;
    const int reason = LastFailure();
    (void)unlink(file.c_str());
    return Fail(reason);
}

}  // namespace

bool MoveToTrash(const std::string& path, std::string* place)
{
    CLinuxFileSystem files;
    const std::optional<std::string> folder = files.ResolveLink(ParentOf(path));
    struct stat facts {
    };
    if (!folder)
        return false;
    if (lstat(Native(path), &facts) != 0)
        return Fail();
    const std::string name(NameOf(path));
    const std::string full = Join(*folder, name);
    if (access(folder->c_str(), W_OK) != 0)
        return Fail();
    const std::optional<Trash> trash = TrashFor(full);
    if (!trash)
        return Fail(ENOTSUP);
    if (!MakeFolders(Join(trash->folder, "info")) || !MakeFolders(Join(trash->folder, "files")))
        return false;
    const std::string written =
        trash->pathBase.empty() ? full : full.substr(Join(trash->pathBase, "").size());
    for (int number = 1; number <= kMostNames; ++number) {
        const std::string inTrash = NameInTrash(name, number);
        const std::string info = Join(Join(trash->folder, "info"), inTrash + ".trashinfo");
        const std::string there = Join(Join(trash->folder, "files"), inTrash);
        if (!WriteInfo(info, written)) {
            if (LastFailure() == EEXIST)
                continue;
            return false;
        }
        if (RenameNoReplace(AT_FDCWD, full, AT_FDCWD, there)) {
            if (place)
                *place = there;
            return true;
        }
        const int reason = LastFailure();
        (void)unlink(info.c_str());
        if (reason != EEXIST)
            return Fail(reason == EXDEV ? ENOTSUP : reason);
    }
    return Fail(EEXIST);
}

bool RestoreFromTrash(const std::string& place, const std::string& path)
{
    const std::string trash = ParentOf(ParentOf(place));
    if (!RenameNoReplace(AT_FDCWD, place, AT_FDCWD, path))
        return false;
    (void)unlink(Native(Join(Join(trash, "info"), std::string(NameOf(place)) + ".trashinfo")));
    return true;
}

}  // namespace platform_linux
