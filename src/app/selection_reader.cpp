// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/selection_reader.h"

#include "browser/file_names.h"
#include "browser/media_types.h"
#include "platform/image.h"
#include "platform/services.h"

#include <algorithm>

namespace app
{

using platform::Os;

CSelectionReader::CSelectionReader(const std::vector<std::string>& paths)
    : selected(paths.begin(), paths.end())
{
}

bool CSelectionReader::Step(std::size_t most)
{
    std::size_t left = most;
    for (; left > 0 && !selected.empty(); --left) {
        const std::string path = std::move(selected.front());
        selected.pop_front();
        Look(path, false);
    }
    while (left > 0 && (folder.reader || !waiting.empty())) {
        if (!folder.reader) {
            folder = {std::move(waiting.back()), nullptr};
            waiting.pop_back();
            folder.reader = Os().files->ReadFolder(folder.path);
            if (!folder.reader) {
                ++totals.unreadable;
                --left;
                continue;
            }
        }
        std::vector<platform::FolderEntry> entries;
        if (!folder.reader->Read(left, entries))
            folder.reader.reset();
        for (const platform::FolderEntry& entry : entries)
            Look(browser::JoinPath(folder.path, entry.name), entry.isLink);
        left -= std::min(left, std::max<std::size_t>(entries.size(), 1));
    }
    return !selected.empty() || !waiting.empty() || folder.reader;
}

void CSelectionReader::Look(const std::string& path, bool isLink)
{
    const auto facts = Os().files->FindFirstFile(path);
    if (!facts) {
        ++totals.unreadable;
    } else if (facts->isFolder) {
        ++totals.folders;
        if (!isLink)
            waiting.push_back(path);
    } else {
        ++totals.files;
        totals.bytes += facts->size;
        totals.oldest =
            totals.oldest == 0 ? facts->lastWriteTime : std::min(totals.oldest, facts->lastWriteTime);
        totals.newest = std::max(totals.newest, facts->lastWriteTime);
    }
}

FileDescription DescribeFile(const std::string& path)
{
    FileDescription description;
    const auto facts = Os().files->FindFirstFile(path);
    if (!facts)
        return description;
    description.found = true;
    description.facts = *facts;
    if (facts->isRegular && (browser::TypeBits(browser::FileName(path)) & browser::kTypePicture) != 0) {
        const platform::CImage image(path);
        description.width = image.Width();
        description.height = image.Height();
    }
    return description;
}

}  // namespace app
