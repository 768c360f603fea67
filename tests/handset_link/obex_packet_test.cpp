// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/obex_packet.h"

#include <gtest/gtest.h>

namespace
{

using suite::PacketState;

TEST(ObexPacket, LengthsThatDoNotAgreeAreSeen)
{
    using namespace std::string_view_literals;
    const struct {
        std::string_view bytes;
        std::size_t fields;
        PacketState state;
        std::size_t length;
    } cases[] = {
        {""sv, 0, PacketState::partial, 0},
        {"\xA0\0"sv, 0, PacketState::partial, 0},
        {"\xA0\0\x03more"sv, 0, PacketState::whole, 3},
        {"\xA0\0\x02"sv, 0, PacketState::bad, 0},
        {"\xA0\xFF\xFF"sv, 0, PacketState::bad, 0},
        {"\xA0\0\x0C\x10\0\x20\0\xCB\0\0\0\x01"sv, 4, PacketState::whole, 12},
        {"\xA0\0\x0C\x10\0\x20\0\xCB\0\0\0"sv, 4, PacketState::partial, 0},
        {"\xC3\0\x03"sv, 4, PacketState::whole, 3},
        {"\x90\0\x0A\x48\0\x05"
         "ab\x97\x01"sv,
         0, PacketState::whole, 10},
        {"\x90\0\x06\x48\0\0"sv, 0, PacketState::bad, 0},  // a header shorter than its head
        {"\x90\0\x06\x48\0\x02"sv, 0, PacketState::bad, 0},
        {"\x90\0\x08\x48\0\x06"
         "ab"sv,
         0, PacketState::bad, 0},  // one that is longer than the packet
        {"\x90\0\x05\x48\0"sv, 0, PacketState::bad, 0},
        {"\x90\0\x06\xCB\0\0"sv, 0, PacketState::bad, 0},
    };
    for (const auto& one : cases) {
        std::size_t length = 0;
        EXPECT_EQ(suite::LookAtPacket(one.bytes, one.fields, length), one.state) << &one - cases;
        EXPECT_EQ(one.state == PacketState::whole ? length : 0, one.length) << &one - cases;
    }
}

}  // namespace
