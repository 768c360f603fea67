// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/section_input.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace photo
{

namespace
{

constexpr std::uint64_t RoundUp(std::uint64_t offset)
{
    return (offset + CSectionInput::kBlock - 1) / CSectionInput::kBlock * CSectionInput::kBlock;
}

}  // namespace

CSectionInput::CSectionInput(platform::CFile& opened) : file(opened) {}

void CSectionInput::Fill(std::size_t length)
{
    if (ended) {
        return;
    }
    windowStart = at / kBlock * kBlock;
    const auto wanted = static_cast<std::size_t>(RoundUp(at + length) - windowStart);
    if (windowStart + wanted > asked && !restricted) {
        file.ReadOnlyWhatIsAsked();
        restricted = true;
    }
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

void CSectionInput::AskFor(std::uint64_t end)
{
    const std::uint64_t wanted = RoundUp(end);
    file.WillNeed(asked, wanted - asked);
    asked = wanted;
}

void CSectionInput::Extend()
{
    if (ended || asked <= windowLength) {
        return;
    }
    const auto wanted = static_cast<std::size_t>(asked);
    auto larger = std::make_unique_for_overwrite<std::uint8_t[]>(wanted);
    std::copy_n(window.get(), windowLength, larger.get());
    window = std::move(larger);
    windowRoom = wanted;
    const std::span<std::uint8_t> rest = std::span(window.get(), wanted).subspan(windowLength);
    windowLength += file.ReadAt(windowLength, std::as_writable_bytes(rest));
    ended = windowLength < wanted;
}

bool CSectionInput::IsWanted(std::size_t head) const
{
    constexpr std::string_view kExif = "Exif";
    const int marker = window[head + 1];
    const bool isOthers = marker == 0xE1 && head + 4 + kExif.size() <= windowLength &&
                          !std::equal(kExif.begin(), kExif.end(), window.get() + head + 4);
    return marker != 0xE0 && !isOthers;
}

void CSectionInput::ForeseeStart()
{
    AskFor(kBlock);
}

void CSectionInput::ForeseeMore()
{
    constexpr std::size_t kHead = 4;  // FF, marker, length
    constexpr int kStartOfScan = 0xDA;
    if (foreseen) {
        return;
    }
    Extend();
    std::size_t need = nextHead + kHead;
    while (need <= windowLength && !foreseen) {
        const std::size_t length = static_cast<std::size_t>(window[nextHead + 2]) << 8 | window[nextHead + 3];
        const std::size_t next = nextHead + 2 + length;
        if (window[nextHead] != 0xFF || length < 2) {
            foreseen = true;
        } else if (window[nextHead + 1] == kStartOfScan) {
            need = next;
            foreseen = true;
        } else if (next + kHead > windowLength && !IsWanted(nextHead)) {
            file.WillNeed(next / kBlock * kBlock, kBlock);
            foreseen = true;
        } else {
            nextHead = next;
            need = next + kHead;
        }
    }
    foreseen = foreseen || ended;
    if (need > asked && !ended) {
        AskFor(need);
    }
}

}  // namespace photo
