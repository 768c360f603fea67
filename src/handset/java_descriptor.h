// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Java descriptors (".jad"): texts of lines "Attribute: value" that go to the handset with the archive which
// they describe.
#pragma once

#include <string>
#include <string_view>

namespace handset
{

constexpr std::size_t kLongestDescriptor = 1 << 20;

enum class DescriptorFault {
    none,
    noArchive,   // the ".jar" of the same name is not beside it
    unreadable,  // or longer than kLongestDescriptor
    badName,     // no "MIDlet-Name:", an empty one, or one that holds more than printable ASCII
};

// The archive beside the descriptor; its ending may be in capitals. Empty when there is none.
std::string ArchiveOf(const std::string& descriptor);

// The value of "MIDlet-Name:"; empty when there is none.
std::string_view MidletName(std::string_view text);

DescriptorFault CheckDescriptor(const std::string& path);

}  // namespace handset
