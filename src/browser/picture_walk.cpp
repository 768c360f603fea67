// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/picture_walk.h"

#include "browser/media_file_list.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace browser
{

void CPictureWalk::SetNames(std::vector<std::string> wanted)
{
    const std::vector<std::string> former = std::exchange(names, std::move(wanted));
    const int stoodAt = std::exchange(position, 0);
    for (int i = stoodAt; i < static_cast<int>(former.size()); ++i) {
        if (GoTo(former[static_cast<std::size_t>(i)]))
            return;
    }
    for (int i = stoodAt - 1; i >= 0; --i) {
        if (GoTo(former[static_cast<std::size_t>(i)]))
            return;
    }
}

bool CPictureWalk::GoTo(std::string_view name)
{
    // Where it stands is the likeliest place, or the one before it, when the list was read anew.
    const auto from = names.begin() + std::clamp(position - 1, 0, Count());
    auto found = std::find(from, names.end(), name);
    if (found == names.end()) {
        found = std::find(names.begin(), from, name);
        if (found == from)
            return false;
    }
    position = static_cast<int>(found - names.begin());
    return true;
}

int CPictureWalk::Beside(int by) const
{
    if (names.empty())
        return position;
    if (ends == WalkEnds::stop)
        return static_cast<int>(
            std::clamp<std::int64_t>(static_cast<std::int64_t>(position) + by, 0, Count() - 1));
    const int moved = (position + by % Count()) % Count();
    return moved < 0 ? moved + Count() : moved;
}

bool CPictureWalk::Step(int by)
{
    const int former = position;
    direction = by < 0 ? -1 : 1;
    position = Beside(by);
    return position != former;
}

const std::string& CPictureWalk::Current() const
{
    static const std::string none;
    return names.empty() ? none : names[static_cast<std::size_t>(position)];
}

std::vector<std::string> CPictureWalk::Nearby() const
{
    std::vector<std::string> nearby;
    for (const int by : {0, direction, -direction}) {
        const int place = Beside(by);
        if (names.empty() || (by != 0 && place == position))
            continue;
        const std::string& name = names[static_cast<std::size_t>(place)];
        if (std::ranges::find(nearby, name) == nearby.end())
            nearby.push_back(name);
    }
    return nearby;
}

bool IsPicture(const MediaItem& item)
{
    return !item.isFolder && (item.types & kTypesWithThumbnail) != 0;
}

std::vector<std::string> PictureNames(const CMediaFileList& list)
{
    std::vector<std::string> names;
    for (int i = 0; i < list.Count(); ++i) {
        if (IsPicture(list.Item(i)))
            names.push_back(list.Item(i).name);
    }
    return names;
}

}  // namespace browser
