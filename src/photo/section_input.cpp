// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/section_input.h"

#include <algorithm>
#include <cstring>

namespace photo
{

namespace
{

constexpr std::uint64_t RoundUp(std::uint64_t offset)
{
    return (offset + CSectionInput::kBlock - 1) / CSectionInput::kBlock * CSectionInput::kBlock;
}

}  // namespace

CSectionInput::CSectionInput(platform::CFile& opened) : file(opened)
{
    file.ReadOnlyWhatIsAsked();
}

void CSectionInput::Fill(std::size_t length)
{
    if (ended) {
        return;
    }
    windowStart = at / kBlock * kBlock;
    const auto wanted = static_cast<std::size_t>(RoundUp(at + length) - windowStart);
    if (wanted > windowRoom) {
        window = std::make_unique_for_overwrite<std::uint8_t[]>(wanted);
        windowRoom = wanted;
    }
    windowLength = file.ReadAt(windowStart, std::as_writable_bytes(std::span(window.get(), wanted)));
    ended = windowLength < wanted;
}

int CSectionInput::Byte()
{
    if (at >= WindowEnd()) {
        Fill(1);
        if (at >= WindowEnd()) {
            return -1;
        }
    }
    return window[static_cast<std::size_t>(at++ - windowStart)];
}

bool CSectionInput::Read(std::span<std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        if (at >= WindowEnd()) {
            Fill(bytes.size());
            if (at >= WindowEnd()) {
                return false;
            }
        }
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), WindowEnd() - at));
        std::memcpy(bytes.data(), window.get() + (at - windowStart), count);
        at += count;
        bytes = bytes.subspan(count);
    }
    return true;
}

bool CSectionInput::Skip(std::size_t length)
{
    if (length == 0) {
        return true;
    }
    at += length - 1;
    return Byte() >= 0;
}

void CSectionInput::Foresee()
{
    // What follows a camera's EXIF section up to the picture's data: two quantisation tables, the frame
    // header, four Huffman tables and the scan header.
    constexpr std::uint64_t kTables = 640;
    Fill(1);
    std::size_t section = 2;
    while (section + 4 <= windowLength && window[section] == 0xFF) {
        const std::size_t length = static_cast<std::size_t>(window[section + 2]) << 8 | window[section + 3];
        const std::size_t next = section + 2 + length;
        if (window[section + 1] == 0xDA || length < 2) {
            return;
        }
        if (next + 4 > windowLength) {
            file.WillNeed(windowLength, RoundUp(next + kTables) - windowLength);
            return;
        }
        section = next;
    }
}

}  // namespace photo
