// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/photo_reader.h"

#include "browser/date_taken.h"
#include "browser/file_names.h"
#include "browser/media_types.h"
#include "photo/exif_summary.h"
#include "ui/tone/tone_player.h"

#include <algorithm>
#include <span>

namespace ui
{

namespace
{

// Files whose facts are read.
constexpr std::size_t kMostFacts = 1000;

bool IsPicture(const std::string& path)
{
    return (browser::TypeBits(browser::FileName(path)) & browser::kTypePicture) != 0;
}

void Widen(std::array<platform::FileTime, 2>& range, platform::FileTime time)
{
    if (time == 0)
        return;
    range[0] = range[0] == 0 ? time : std::min(range[0], time);
    range[1] = std::max(range[1], time);
}

template <typename Value> void Join(Common<Value>& common, const Value& value, bool isFirst)
{
    if (isFirst)
        common.value = value;
    else
        common.isSame = common.isSame && common.value == value;
}

void Look(const std::string& path, PhotoInfo& info)
{
    const app::FileDescription file = app::DescribeFile(path);
    const bool isFirst = info.looked++ == 0;
    Join(info.types, browser::TypeBits(browser::FileName(path)), isFirst);
    Join(info.pixels, platform::Extent{file.width, file.height}, isFirst);
    if (!file.found)
        return;
    info.found = true;
    info.file = file;
    info.bytes += file.facts.isFolder ? 0 : file.facts.size;
    Widen(info.created, file.facts.creationTime);
    Widen(info.modified, file.facts.lastWriteTime);
    if (file.facts.isRegular && IsPicture(path))
        Widen(info.taken, browser::ReadDateTaken(path));
}

}  // namespace

PhotoInfo ReadPhotoInfo(const PhotoQuestion& question, const std::atomic<bool>& isStale)
{
    PhotoInfo info;
    const std::span all(question.paths);
    for (const std::string& path : all.first(std::min(all.size(), kMostFacts))) {
        if (isStale)
            return info;
        Look(path, info);
    }
    // A summary of a clip would open one of its frames.
    if (all.size() == 1 && info.file.facts.isRegular && IsPicture(all.front()))
        info.exifText = photo::BuildExifSummary(all.front());
    if (all.size() == 1 && info.file.facts.isRegular) {
        info.tone = app::ReadToneFacts(all.front());
        info.toneNeeds = CTonePlayer::Missing(info.tone.plays);
    }
    if (question.carriers.empty() || isStale)
        return info;
    browser::CThumbDbMgr manager(question.storeFolder);
    manager.Load();
    info.texts = photo::CCaptionStore(manager).Get(question.carriers);
    return info;
}

}  // namespace ui
