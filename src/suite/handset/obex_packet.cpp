// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/obex_packet.h"

namespace suite
{

namespace
{

constexpr std::size_t kHead = 3;  // of a packet, and of a header whose length is told

std::size_t LengthAt(std::string_view bytes)
{
    return static_cast<std::size_t>(static_cast<unsigned char>(bytes[1])) << 8 |
           static_cast<unsigned char>(bytes[2]);
}

// Of the header that the bytes begin with; 0 when it says something impossible.
std::size_t HeaderLength(std::string_view bytes)
{
    switch (static_cast<unsigned char>(bytes[0]) >> 6) {
    case 2:
        return 2;
    case 3:
        return 5;
    default:
        return bytes.size() >= kHead && LengthAt(bytes) >= kHead ? LengthAt(bytes) : 0;
    }
}

bool AreHeadersGood(std::string_view headers)
{
    while (!headers.empty()) {
        const std::size_t length = HeaderLength(headers);
        if (length == 0 || length > headers.size())
            return false;
        headers.remove_prefix(length);
    }
    return true;
}

}  // namespace

PacketState LookAtPacket(std::string_view bytes, std::size_t fields, std::size_t& length)
{
    if (bytes.size() < kHead)
        return PacketState::partial;
    const std::size_t told = LengthAt(bytes);
    if (told < kHead || told > kLongestPacket)
        return PacketState::bad;
    if (told > bytes.size())
        return PacketState::partial;
    length = told;
    // A refusal may leave the fields out.
    const std::string_view rest = bytes.substr(kHead, told - kHead);
    return AreHeadersGood(rest.substr(rest.size() < fields ? 0 : fields)) ? PacketState::whole
                                                                          : PacketState::bad;
}

}  // namespace suite
