// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxFolderReader: a folder's entries, asking about single files only where the listing does not say what
// they are.
#pragma once

#include "platform/file_system.h"

#include <dirent.h>
#include <memory>

namespace platform_linux
{

struct DirCloser {
    void operator()(DIR* opened) const { closedir(opened); }
};
using DirHandle = std::unique_ptr<DIR, DirCloser>;

// Opens the folder `name` of the folder open as `parent` (AT_FDCWD for a path); null with the reason kept.
// `flags` may add O_NOFOLLOW.
DirHandle OpenFolder(int parent, const std::string& name, int flags);
// The next entry that is neither "." nor ".."; null at the end and on failure.
const dirent* NextEntry(DIR* folder);

class CLinuxFolderReader final : public platform::CFolderReader
{
public:
    explicit CLinuxFolderReader(DirHandle opened) : folder(std::move(opened)) {}
    bool Read(std::size_t most, std::vector<platform::FolderEntry>& entries) override;

private:
    DirHandle folder;
};

}  // namespace platform_linux
