// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The EXIF values of a TIFF file, read where they stand, so that its length does not matter.
#pragma once

#include "platform/image.h"
#include "suite/image/input_file.h"

namespace suite
{

// Looked for in the first directory of the file, then in its EXIF directory. Nothing for a value that the
// file does not have, or not whole, or that is longer than 64 kB.
std::optional<platform::PropertyItem> ReadTiffItem(const CInputFile& file, std::uint16_t tag);

}  // namespace suite
