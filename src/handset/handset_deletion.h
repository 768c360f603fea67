// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetDeletion: files that came from the handset, deleted on it one by one. Those on this side stay.
//
// One Step a file, each as long as the handset takes; the rest is done at once. A file without a record is
// asked for with the index 0, which no handset file has. One thread.
#pragma once

#include "platform/handset_link.h"
#include "platform/string_ids.h"

#include <cstddef>
#include <string>
#include <vector>

namespace handset
{

enum class FolderClass { ring, other };

// Of the folder that the file is in: the folders that receive files have the names of their categories.
FolderClass ClassOfFolder(const std::string& path);
// What the files of such a folder are to the handset.
platform::FileDataType DeletionCategory(FolderClass folderClass);

class CHandsetDeletion
{
public:
    CHandsetDeletion(std::vector<std::string> paths, FolderClass folderClass, unsigned port);

    // Deletes the next file; false when there was none left.
    bool Step();
    // Leaves the files that are still to come alone.
    void Stop();

    std::size_t Position() const { return next; }
    std::size_t Count() const { return files.size(); }
    // The file that the next step is about; empty at the end.
    std::string PathInWork() const { return next < files.size() ? files[next] : std::string(); }
    const std::vector<std::string>& FailedPaths() const { return failedPaths; }
    // Why the last of them stayed there, in English.
    const std::string& Reason() const { return reason; }
    // To be told once, after the run; none when every file went.
    platform::StringId Message() const;

private:
    std::vector<std::string> files;
    platform::FileDataType type;
    unsigned port;
    std::size_t next = 0;
    std::vector<std::string> failedPaths;
    std::string reason;
    std::unique_ptr<platform::CUpDownLoad> held;  // keeps the connection from one file to the next
};

}  // namespace handset
