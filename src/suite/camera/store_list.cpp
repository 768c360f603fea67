// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/camera/store_list.h"

#include "platform/services.h"
#include "platform/shell.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace suite
{

namespace
{

// Cards have two levels; a folder tree deeper than this is no camera's.
constexpr int kDeepest = 8;
// A folder with more names than this is none that only holds photo folders; disks have large ones.
constexpr std::size_t kMostAbove = 2'000;

bool IsOneOf(const std::string& word, const std::vector<std::string>& words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

// By the lower-case name first, so that the order does not hang on the file system's.
std::vector<std::string> SortedNames(std::vector<std::pair<std::string, std::string>> names)
{
    std::sort(names.begin(), names.end());
    std::vector<std::string> sorted;
    sorted.reserve(names.size());
    for (auto& [lower, name] : names)
        sorted.push_back(std::move(name));
    return sorted;
}

// The names in a folder but for hidden ones; looks at no more than `left`, which becomes smaller by those.
// False when the folder cannot be listed.
bool ReadNames(const std::string& folder, std::vector<std::string>& sorted, std::size_t& left)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    if (!stream)
        return false;
    std::vector<std::pair<std::string, std::string>> names;
    errno = 0;
    while (left > 0) {
        const dirent* entry = readdir(stream.get());
        if (!entry)
            break;
        const std::string_view name = entry->d_name;
        left -= name == "." || name == ".." ? 0 : 1;
        if (name.front() != '.')
            names.emplace_back(LowerCase(entry->d_name), entry->d_name);
        errno = 0;
    }
    const bool isWhole = errno == 0;
    sorted = SortedNames(std::move(names));
    return isWhole;
}

std::string NameOf(const std::string& path)
{
    const std::size_t last = path.find_last_not_of('/');
    const std::string trimmed = path.substr(0, last + 1);
    return trimmed.substr(trimmed.rfind('/') + 1);
}

// The number of the file system that a folder lies on; none when it is no folder.
std::optional<std::uint64_t> DeviceOf(const std::string& folder)
{
    struct stat facts = {};
    const bool isThere = stat(folder.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
    return isThere ? std::optional<std::uint64_t>(facts.st_dev) : std::nullopt;
}

bool IsFolder(const std::string& path)
{
    struct stat facts = {};
    return lstat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

class CStoreWalk
{
public:
    CStoreWalk(const DeviceRules& theRules, ListBounds theBounds) : rules(theRules), left(theBounds) {}

    void Enter(const std::string& folder, int depth)
    {
        std::vector<std::string> names;
        if (!ReadNames(folder, names, left.names))
            list.leftOut.push_back(folder);
        list.isCut |= left.names == 0;
        for (const std::string& name : names)
            Look(folder + '/' + name, name, depth);
    }
    StoreList list;

private:
    void Look(const std::string& path, const std::string& name, int depth)
    {
        struct stat facts = {};
        const bool isThere = lstat(path.c_str(), &facts) == 0;
        if (isThere && S_ISDIR(facts.st_mode)) {
            if (depth < kDeepest)
                Enter(path, depth + 1);
            return;
        }
        const std::size_t dot = name.rfind('.');
        const std::string extension = dot == std::string::npos ? "" : LowerCase(name.substr(dot + 1));
        const bool isPhoto = IsOneOf(extension, rules.photos);
        if (!isPhoto && !IsOneOf(extension, rules.clips))
            return;
        if (!isThere || (S_ISREG(facts.st_mode) && access(path.c_str(), R_OK) != 0))
            list.leftOut.push_back(path);
        else if (S_ISREG(facts.st_mode) && !TakeOne())
            list.isCut = true;
        else if (S_ISREG(facts.st_mode))
            (isPhoto ? list.photos : list.clips)
                .push_back({path, static_cast<std::uint64_t>(facts.st_size), facts.st_mtim.tv_sec});
    }

    bool TakeOne() { return left.files > 0 && left.files-- > 0; }

    const DeviceRules& rules;
    ListBounds left;
};

// The photo folders of a store: in its root, and in the folders there (a device with a store inside and a
// card shows both as folders).
std::vector<std::string> PhotoFolders(const std::string& root, const DeviceRules& rules)
{
    std::vector<std::string> found;
    std::vector<std::string> names;
    std::vector<std::string> below;
    std::size_t left = kMostAbove;
    ReadNames(root, names, left);
    for (const std::string& name : names) {
        const std::string path = root + '/' + name;
        if (!IsFolder(path))
            continue;
        if (IsOneOf(LowerCase(name), rules.folders)) {
            found.push_back(path);
            continue;
        }
        left = kMostAbove;
        ReadNames(path, below, left);
        for (const std::string& inner : below) {
            if (IsOneOf(LowerCase(inner), rules.folders) && IsFolder(path + '/' + inner))
                found.push_back(path + '/' + inner);
        }
    }
    return found;
}

}  // namespace

StoreList ListStore(const std::string& root, const DeviceRules& rules, ListBounds bounds)
{
    CStoreWalk walk(rules, bounds);
    std::vector<std::string> folders = PhotoFolders(root, rules);
    if (folders.empty() && root == rules.root)
        folders.push_back(root);
    for (const std::string& folder : folders)
        walk.Enter(folder, 0);
    return std::move(walk.list);
}

std::vector<FoundStore> FindStores(const DeviceRules& rules)
{
    if (!rules.root.empty()) {
        const std::optional<std::uint64_t> device = DeviceOf(rules.root);
        return device ? std::vector<FoundStore>{{rules.root, NameOf(rules.root), *device}}
                      : std::vector<FoundStore>{};
    }
    std::vector<FoundStore> named;
    std::vector<FoundStore> removable;
    const std::vector<platform::Volume> volumes =
        platform::Os().shell ? platform::Os().shell->Volumes() : std::vector<platform::Volume>{};
    for (const platform::Volume& volume : volumes) {
        const bool isNamed = IsOneOf(LowerCase(volume.label), rules.labels);
        if ((isNamed || volume.removable) && !PhotoFolders(volume.mountPoint, rules).empty())
            (isNamed ? named : removable)
                .push_back({volume.mountPoint, volume.label, DeviceOf(volume.mountPoint).value_or(0)});
    }
    named.insert(named.end(), removable.begin(), removable.end());
    return named;
}

// A card that was pulled out may stay mounted, but its device goes.
bool IsStillThere(const FoundStore& store)
{
    std::vector<std::string> names;
    std::size_t left = kMostAbove;
    const std::string device =
        "/sys/dev/block/" + std::to_string(major(store.device)) + ':' + std::to_string(minor(store.device));
    return DeviceOf(store.root) == store.device && ReadNames(store.root, names, left) &&
           (major(store.device) == 0 || access(device.c_str(), F_OK) == 0);
}

bool IsUnchanged(const StoredFile& file)
{
    struct stat facts = {};
    return lstat(file.path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) &&
           static_cast<std::uint64_t>(facts.st_size) == file.size &&
           facts.st_mtim.tv_sec == file.modifiedSeconds;
}

}  // namespace suite
