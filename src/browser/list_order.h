// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The order of a file list: by which column, and which way.
//
// Folders come first both ways. What is equal by the column is in name order both ways, and so is what the
// column tells nothing about: folders by size, photos without a date, which come last.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace browser
{

struct MediaItem;

// Numbered as the columns that they are the keys of.
enum class SortKey { name, size, type, modified, dateTaken };
inline constexpr int kSortKeys = 5;

struct SortOrder {
    SortKey key = SortKey::name;
    bool descending = false;
    bool operator==(const SortOrder&) const = default;
};

// What has to be read from the files before a list can be sorted by a key.
enum class SortNeeds { nothing, facts, dates };
SortNeeds NeedsOf(SortKey key);

// The key of "name", "size", "type", "modified" or "taken".
std::optional<SortKey> SortKeyNamed(std::string_view word);

// The items' indexes in the order asked for. Every item must have its name's rank; the time taken for
// 100,000 items is a few frames at most.
std::vector<std::uint32_t> OrderOf(const std::vector<MediaItem>& items, SortOrder order);

}  // namespace browser
