// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The photos and clips of a mounted store, and where such a store is.
#pragma once

#include "suite/camera/device_file.h"

#include <cstdint>
#include <limits>

namespace suite
{

// A file of the store, and what tells it from one that has taken its place.
struct StoredFile {
    std::string path;
    std::uint64_t size = 0;
    std::int64_t modifiedSeconds = 0;  // inode numbers are not for FAT, where they come and go
};

struct StoreList {
    std::vector<StoredFile> photos;
    std::vector<StoredFile> clips;
    std::vector<std::string> leftOut;  // what looked like one but cannot be read, and folders likewise
    bool isCut = false;                // the bounds were reached before the end

    bool IsEmpty() const { return photos.empty() && clips.empty(); }
};

// How far a listing goes.
struct ListBounds {
    std::size_t files = std::numeric_limits<std::size_t>::max();
    std::size_t names = std::numeric_limits<std::size_t>::max();  // of whatever kind
};

// What is in the store's photo folders, in the order of the folders' and files' names without regard to case,
// and by the exact name where only the case differs. Photo folders stand in the root or one folder below it.
// A root that the user has named and that has none is itself taken for one. Links, hidden files and folders
// that are called like photos are none.
StoreList ListStore(const std::string& root, const DeviceRules& rules, ListBounds bounds = {});

// A store's root, what the place is called, and what is mounted there.
struct FoundStore {
    std::string root;
    std::string label;
    std::uint64_t device = 0;
};

// The stores to try: the one that was named, else the mounted volumes with a photo folder: those with a label
// that the rules name, then the removable ones.
std::vector<FoundStore> FindStores(const DeviceRules& rules);

// Whether what was found is still there, and not just the place where it was mounted.
bool IsStillThere(const FoundStore& store);

// Whether the file is still the one that was listed.
bool IsUnchanged(const StoredFile& file);

}  // namespace suite
