// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Crc16: the checksum that ends a SMAF file. CRC-16/GENIBUS of the catalogue of parametrised CRC algorithms:
// polynomial 0x1021, initially 0xFFFF, not reflected, inverted at the end. Of "123456789" it is 0xD64E.
#pragma once

#include <cstdint>
#include <span>

namespace score
{

std::uint16_t Crc16(std::span<const std::uint8_t> bytes);

}  // namespace score
