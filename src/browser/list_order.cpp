// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_order.h"

#include "browser/file_names.h"
#include "browser/media_file_list.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

namespace browser
{

namespace
{

constexpr std::array<std::string_view, kSortKeys> kWords = {"name", "size", "type", "modified", "taken"};

enum Group : std::uint32_t { folders, files, filesWithoutKey };

struct Entry {
    std::uint64_t key = 0;
    std::uint32_t group = files;
    std::uint32_t nameRank = 0;
    std::uint32_t index = 0;
};

// Numbers in alphabetical order for the extensions that occur.
class CTypeRanks
{
public:
    explicit CTypeRanks(const std::vector<MediaItem>& items)
    {
        for (const MediaItem& item : items) {
            ranks.try_emplace(LowerCase(Extension(item.name)), 0);
        }
        std::vector<std::string> sorted;
        for (const auto& [extension, rank] : ranks) {
            sorted.push_back(extension);
        }
        std::ranges::sort(sorted);
        for (std::size_t i = 0; i < sorted.size(); ++i) {
            ranks[sorted[i]] = i;
        }
    }
    std::uint64_t Of(const MediaItem& item) const { return ranks.at(LowerCase(Extension(item.name))); }

private:
    std::unordered_map<std::string, std::uint64_t> ranks;
};

std::uint64_t NumberOf(const MediaItem& item, SortKey key)
{
    switch (key) {
    case SortKey::name:
        return item.nameRank;
    case SortKey::size:
        return item.isFolder ? 0 : item.fileSize;
    case SortKey::modified:
        return item.lastWriteTime;
    case SortKey::dateTaken:
        return item.dateTaken;
    case SortKey::type:
        break;
    }
    return 0;
}

std::vector<Entry> EntriesOf(const std::vector<MediaItem>& items, SortOrder order)
{
    const CTypeRanks types(order.key == SortKey::type ? items : std::vector<MediaItem>{});
    std::vector<Entry> entries;
    entries.reserve(items.size());
    for (const MediaItem& item : items) {
        Entry entry{NumberOf(item, order.key), item.isFolder ? folders : files, item.nameRank,
                    static_cast<std::uint32_t>(entries.size())};
        if (order.key == SortKey::type && !item.isFolder) {
            entry.key = types.Of(item);
        }
        if (order.key == SortKey::dateTaken && !item.isFolder && item.dateTaken == 0) {
            entry.group = filesWithoutKey;
        } else if (order.descending) {
            entry.key = ~entry.key;
        }
        entries.push_back(entry);
    }
    return entries;
}

}  // namespace

SortNeeds NeedsOf(SortKey key)
{
    switch (key) {
    case SortKey::size:
    case SortKey::modified:
        return SortNeeds::facts;
    case SortKey::dateTaken:
        return SortNeeds::dates;
    default:
        return SortNeeds::nothing;
    }
}

std::optional<SortKey> SortKeyNamed(std::string_view word)
{
    const auto found = std::ranges::find(kWords, word);
    return found == kWords.end() ? std::nullopt : std::optional(SortKey(found - kWords.begin()));
}

std::vector<std::uint32_t> OrderOf(const std::vector<MediaItem>& items, SortOrder order)
{
    std::vector<Entry> entries = EntriesOf(items, order);
    std::ranges::sort(entries, [](const Entry& left, const Entry& right) {
        if (left.group != right.group) {
            return left.group < right.group;
        }
        return left.key != right.key ? left.key < right.key : left.nameRank < right.nameRank;
    });
    std::vector<std::uint32_t> indexes;
    indexes.reserve(entries.size());
    for (const Entry& entry : entries) {
        indexes.push_back(entry.index);
    }
    return indexes;
}

}  // namespace browser
