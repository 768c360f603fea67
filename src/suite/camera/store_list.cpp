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
#include <sys/stat.h>
#include <unistd.h>

namespace suite
{

namespace
{

// Cards have two levels; a folder tree deeper than this is no camera's.
constexpr int kDeepest = 8;

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

// The names in a folder but for hidden ones; false when it cannot be listed.
bool ReadNames(const std::string& folder, std::vector<std::string>& sorted)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    if (!stream)
        return false;
    std::vector<std::pair<std::string, std::string>> names;
    errno = 0;
    while (const dirent* entry = readdir(stream.get())) {
        if (entry->d_name[0] != '.')
            names.emplace_back(LowerCase(entry->d_name), entry->d_name);
        errno = 0;
    }
    const bool isWhole = errno == 0;
    sorted = SortedNames(std::move(names));
    return isWhole;
}

bool IsFolder(const std::string& path)
{
    struct stat facts = {};
    return lstat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

class CStoreWalk
{
public:
    explicit CStoreWalk(const DeviceRules& theRules) : rules(theRules) {}

    void Enter(const std::string& folder, int depth)
    {
        std::vector<std::string> names;
        if (!ReadNames(folder, names))
            list.leftOut.push_back(folder);
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
        else if (S_ISREG(facts.st_mode))
            (isPhoto ? list.photos : list.clips)
                .push_back({path, static_cast<std::uint64_t>(facts.st_size), facts.st_mtim.tv_sec});
    }

    const DeviceRules& rules;
};

// The photo folders of a store: in its root, and in the folders there (a device with a store inside and a
// card shows both as folders).
std::vector<std::string> PhotoFolders(const std::string& root, const DeviceRules& rules)
{
    std::vector<std::string> found;
    std::vector<std::string> names;
    std::vector<std::string> below;
    ReadNames(root, names);
    for (const std::string& name : names) {
        const std::string path = root + '/' + name;
        if (!IsFolder(path))
            continue;
        if (IsOneOf(LowerCase(name), rules.folders)) {
            found.push_back(path);
            continue;
        }
        ReadNames(path, below);
        for (const std::string& inner : below) {
            if (IsOneOf(LowerCase(inner), rules.folders) && IsFolder(path + '/' + inner))
                found.push_back(path + '/' + inner);
        }
    }
    return found;
}

}  // namespace

StoreList ListStore(const std::string& root, const DeviceRules& rules)
{
    CStoreWalk walk(rules);
    std::vector<std::string> folders = PhotoFolders(root, rules);
    if (folders.empty() && root == rules.root)
        folders.push_back(root);
    for (const std::string& folder : folders)
        walk.Enter(folder, 0);
    return std::move(walk.list);
}

std::vector<std::string> FindStores(const DeviceRules& rules)
{
    struct stat facts = {};
    if (!rules.root.empty()) {
        const bool isThere = stat(rules.root.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
        return isThere ? std::vector{rules.root} : std::vector<std::string>{};
    }
    std::vector<std::string> named;
    std::vector<std::string> removable;
    const std::vector<platform::Volume> volumes =
        platform::Os().shell ? platform::Os().shell->Volumes() : std::vector<platform::Volume>{};
    for (const platform::Volume& volume : volumes) {
        const bool isNamed = IsOneOf(LowerCase(volume.label), rules.labels);
        if ((isNamed || volume.removable) && !PhotoFolders(volume.mountPoint, rules).empty())
            (isNamed ? named : removable).push_back(volume.mountPoint);
    }
    named.insert(named.end(), removable.begin(), removable.end());
    return named;
}

bool IsUnchanged(const StoredFile& file)
{
    struct stat facts = {};
    return lstat(file.path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) &&
           static_cast<std::uint64_t>(facts.st_size) == file.size &&
           facts.st_mtim.tv_sec == file.modifiedSeconds;
}

}  // namespace suite
