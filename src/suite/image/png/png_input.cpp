// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/png/png_input.h"

#include <span>

namespace suite
{
namespace
{

constexpr unsigned kLongestSide = 65535;
constexpr std::size_t kLargestChunk = 16U << 20;

}  // namespace

CPngInput::CPngInput(const CInputFile& read) : file(read)
{
    reader =
        png_create_read_struct(PNG_LIBPNG_VER_STRING, this, OnError, [](png_structp, png_const_charp) {});
    if (reader == nullptr)
        return;
    png_set_read_fn(reader, this, OnRead);
    png_set_user_limits(reader, kLongestSide, kLongestSide);
    png_set_chunk_malloc_max(reader, kLargestChunk);
    // A wrong check sum is no reason to show nothing.
    png_set_crc_action(reader, PNG_CRC_WARN_USE, PNG_CRC_WARN_DISCARD);
    info = png_create_info_struct(reader);
}

CPngInput::~CPngInput()
{
    png_destroy_read_struct(&reader, &info, nullptr);
}

void CPngInput::OnError(png_structp failed, png_const_charp)
{
    std::longjmp(static_cast<CPngInput*>(png_get_error_ptr(failed))->onError, 1);
}

void CPngInput::OnRead(png_structp reading, png_bytep bytes, std::size_t length)
{
    CPngInput& input = *static_cast<CPngInput*>(png_get_io_ptr(reading));
    if (input.file.ReadAt(input.offset, {bytes, length}) != length)
        png_error(reading, "end of file");
    input.offset += length;
}

}  // namespace suite
