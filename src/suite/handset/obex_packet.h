// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A look at an OBEX packet before it is trusted: whether its length and those of its headers agree.
#pragma once

#include <cstddef>
#include <string_view>

namespace suite
{

constexpr std::size_t kLongestPacket = 8192;

enum class PacketState { whole, partial, bad };

// The packet at the beginning of the bytes; `length` becomes its own when it is whole. `fields` is how many
// bytes stand before its headers: 4 in the answer to a CONNECT, else none.
PacketState LookAtPacket(std::string_view bytes, std::size_t fields, std::size_t& length);

}  // namespace suite
