// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/crc16.h"

#include <array>

namespace score
{
namespace
{

constexpr std::uint16_t kPolynomial = 0x1021;

constexpr std::array<std::uint16_t, 256> MakeTable()
{
    std::array<std::uint16_t, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        unsigned value = byte << 8;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 0x8000) != 0 ? (value << 1) ^ kPolynomial : value << 1;
        table[byte] = static_cast<std::uint16_t>(value);
    }
    return table;
}

constexpr auto kTable = MakeTable();

}  // namespace

std::uint16_t Crc16(std::span<const std::uint8_t> bytes)
{
    unsigned value = 0xFFFF;
    for (const std::uint8_t byte : bytes)
        value = ((value << 8) & 0xFFFF) ^ kTable[(value >> 8) ^ byte];
    return static_cast<std::uint16_t>(~value);
}

}  // namespace score
