// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_input.h"

#include <algorithm>
#include <jerror.h>

namespace suite
{
namespace
{

constexpr long kMostMemory = 512L << 20;
// Honest progressive files have about ten scans; each costs a walk over the whole picture.
constexpr std::uint64_t kLeastScans = 16;
constexpr std::uint64_t kMostScans = 200;
constexpr std::uint64_t kMostPixelsInScans = std::uint64_t{1} << 31;
constexpr int kMostLostStretches = 100;
constexpr std::array<std::uint8_t, 2> kEndOfImage = {0xFF, 0xD9};

bool IsRestartMarker(int marker)
{
    return marker >= 0xD0 && marker <= 0xD7;
}

}  // namespace

CJpegInput::CJpegInput(const CInputFile& read, std::uint64_t length) : file(read), end(length)
{
    info.err = jpeg_std_error(&errors);
    info.client_data = this;
    errors.error_exit = OnError;
    errors.emit_message = OnMessage;
    if (setjmp(onError) != 0)
        return;
    jpeg_create_decompress(&info);
    info.mem->max_memory_to_use = kMostMemory;
    source.init_source = [](j_decompress_ptr) {};
    source.fill_input_buffer = Fill;
    source.skip_input_data = Skip;
    source.resync_to_restart = jpeg_resync_to_restart;
    source.term_source = [](j_decompress_ptr) {};
    info.src = &source;
    isCreated = true;
}

CJpegInput::~CJpegInput()
{
    jpeg_destroy_decompress(&info);
}

bool CJpegInput::HasMore(std::size_t length) const
{
    std::array<std::uint8_t, 16> rest;
    const std::size_t asked = length < rest.size() ? length : rest.size();
    return source.bytes_in_buffer >= asked ||
           source.bytes_in_buffer + Read(std::span(rest).first(asked)) >= asked;
}

std::size_t CJpegInput::Read(std::span<std::uint8_t> bytes) const
{
    const std::uint64_t left = end > offset ? end - offset : 0;
    return file.ReadAt(offset,
                       bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(left, bytes.size()))));
}

void CJpegInput::OnError(j_common_ptr common)
{
    std::longjmp(Of(common).onError, 1);
}

void CJpegInput::OnMessage(j_common_ptr common, int level)
{
    if (level >= 0)
        return;
    ++common->err->num_warnings;
    // After a lost stretch a restart marker lets the decoder go on; any other marker ends the scan.
    CJpegInput& input = Of(common);
    if (common->err->msg_code == JWRN_HIT_MARKER &&
        (!IsRestartMarker(input.info.unread_marker) || ++input.lostStretches > kMostLostStretches))
        input.endedEarly = true;
}

bool CJpegInput::HasTooManyScans() const
{
    const std::uint64_t pixels = std::uint64_t{info.image_width} * info.image_height;
    const std::uint64_t most = std::clamp(kMostPixelsInScans / pixels, kLeastScans, kMostScans);
    return static_cast<std::uint64_t>(info.input_scan_number) > most;
}

bool CJpegInput::IsTooShort() const
{
    constexpr std::uint64_t kPixelsOfBlock = 64;
    return std::uint64_t{info.image_width} * info.image_height / kPixelsOfBlock > file.Length() * 8;
}

boolean CJpegInput::Fill(j_decompress_ptr decoder)
{
    CJpegInput& input = *static_cast<CJpegInput*>(decoder->client_data);
    const std::size_t got = input.Read(input.buffer);
    input.offset += got;
    input.source.next_input_byte = got > 0 ? input.buffer.data() : kEndOfImage.data();
    input.source.bytes_in_buffer = got > 0 ? got : kEndOfImage.size();
    return TRUE;
}

void CJpegInput::Skip(j_decompress_ptr decoder, long length)
{
    CJpegInput& input = *static_cast<CJpegInput*>(decoder->client_data);
    if (length <= 0)
        return;
    const std::size_t skipped = static_cast<std::size_t>(length);
    if (skipped < input.source.bytes_in_buffer) {
        input.source.next_input_byte += skipped;
        input.source.bytes_in_buffer -= skipped;
    } else {
        input.offset += skipped - input.source.bytes_in_buffer;
        input.source.bytes_in_buffer = 0;
    }
}

}  // namespace suite
