// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/entropy_bytes.h"

#include <algorithm>
#include <span>

namespace suite
{

BitWindow CEntropyBytes::Start()
{
    BitWindow window;
    window.next = bytes.data();
    Append();
    return window;
}

void CEntropyBytes::Refill(BitWindow& window)
{
    // Whole bytes go back, so that what the window keeps is less than a byte.
    window.next -= window.count >> 3;
    window.count &= 7;
    window.bits &= ~(~std::uint64_t{0} >> window.count);
    const std::ptrdiff_t kept = std::max<std::ptrdiff_t>(0, end - window.next);
    std::memmove(bytes.data(), end - kept, static_cast<std::size_t>(kept));
    end = bytes.data() + kept;
    window.next = bytes.data();
    Append();
}

// Adds a block of the file to the bytes at hand; at most kSlack of those are there already.
void CEntropyBytes::Append()
{
    while (!atMarker && end - bytes.data() < kLow) {
        const std::size_t length = file.ReadAt(offset, raw);
        if (length == 0) {
            atMarker = true;
            marker = -1;
        } else {
            TakeBlock(length);
        }
    }
    std::memset(end, 0, kSlack);
}

void CEntropyBytes::TakeBlock(std::size_t length)
{
    std::size_t at = 0;
    while (at < length) {
        const void* const found = std::memchr(raw.data() + at, 0xFF, length - at);
        const std::size_t plain =
            found == nullptr ? length
                             : static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - raw.data());
        end = std::copy(raw.data() + at, raw.data() + plain, end);
        at = plain;
        if (at + 1 >= length)
            break;
        const int code = raw[at + 1];
        if (code == 0) {
            *end++ = 0xFF;
            at += 2;
        } else if (code == 0xFF) {
            ++at;
        } else {
            atMarker = true;
            marker = code;
            at += 2;
            break;
        }
    }
    // A lone 0xFF at the block's end is looked at again with the next one, unless it ends the file.
    if (!atMarker && at == 0)
        atMarker = true;
    offset += at;
}

bool CEntropyBytes::PassRestart(BitWindow& window, int number)
{
    constexpr int kFirstRestart = 0xD0;
    // Bytes at hand, and the marker behind them, must be used up but for the last byte's padding.
    if (RunsLow(window))
        Refill(window);
    const std::ptrdiff_t left = (end - window.next) * 8 + window.count;
    if (!atMarker || marker != kFirstRestart + number || left < 0 || left >= 8)
        return false;
    atMarker = false;
    end = bytes.data();
    window = Start();
    return true;
}

}  // namespace suite
