// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A picture file through the image library: its header, its EXIF values, its pixels at the size that the
// quick walk serves and at one that libjpeg serves.
#include "suite/image/image_library.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

// Larger pictures only cost time here: what they may cost is bounded elsewhere.
constexpr int kLongestSide = 4096;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static suite::CSuiteImageLibrary library;
    const int file = memfd_create("picture", MFD_CLOEXEC);
    if (file < 0 || write(file, data, size) != static_cast<ssize_t>(size))
        return 0;
    const auto picture = library.Open("/proc/self/fd/" + std::to_string(file));
    close(file);
    if (!picture)
        return 0;
    for (const std::uint16_t tag : {std::uint16_t{0x0112}, platform::kTagDateTimeOriginal, std::uint16_t{2}})
        picture->GetPropertyItem(tag);
    if (std::max(picture->Width(), picture->Height()) > kLongestSide)
        return 0;
    picture->Render((picture->Width() + 7) / 8, (picture->Height() + 7) / 8);
    picture->Render(std::min(picture->Width(), 100), std::min(picture->Height(), 75));
    return 0;
}
