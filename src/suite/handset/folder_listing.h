// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ReadFolderListing: the files of a folder as a handset lists them (x-obex/folder-listing, an XML text).
//
// Listings come from many makers and are often not quite XML, so every <file> element is taken where it
// stands, and only its attributes name and size are looked at. Any bytes will do; a file without a name is
// left out, and one of a name that no request could ask for (with a zero in it) as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace suite
{

constexpr std::size_t kLongestListing = 8 << 20;  // bytes; what follows is not read
constexpr std::size_t kMostListedFiles = 20'000;

struct ListedFile {
    std::string name;        // as the handset calls it, UTF-8; any text at all
    std::uint64_t size = 0;  // bytes, as told; 0 when not
    int index = 0;           // from 1; unlike every other of the listing
    bool operator==(const ListedFile&) const = default;
};

// In the order of their names, each once. The index is made of the category and the name, so that it is the
// same for as long as the file has its name; of two that would have one index, the second takes the next.
std::vector<ListedFile> ReadFolderListing(std::string_view listing, int category);

// The free bytes of the memory that has most of them, as an x-obex/capability object tells; nothing when it
// does not.
std::optional<std::uint64_t> ReadFreeSpace(std::string_view capability);

// The name under which a file of the handset is kept on this side: at most 240 bytes of UTF-8 that names a
// visible file and no path.
std::string LocalName(std::string_view handsetName);

}  // namespace suite
