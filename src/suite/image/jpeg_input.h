// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CJpegInput: feeds libjpeg from a file in blocks, and its errors back to the caller.
//
// libjpeg leaves a failed call by longjmp. Every call into it goes through Guarded, whose step must own
// nothing with a destructor.
#pragma once

#include "suite/image/input_file.h"

#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <cstdio>  // jpeglib.h needs FILE and does not say so
#include <jpeglib.h>
#include <span>

namespace suite
{

class CJpegInput
{
public:
    // Only the file's first `length` bytes are read.
    explicit CJpegInput(const CInputFile& read, std::uint64_t length = UINT64_MAX);
    ~CJpegInput();
    CJpegInput(const CJpegInput&) = delete;
    CJpegInput& operator=(const CJpegInput&) = delete;

    // False when a call into libjpeg failed inside `step`.
    template <typename Step> bool Guarded(Step step)
    {
        if (!isCreated || setjmp(onError) != 0)
            return false;
        step(info);
        return true;
    }
    // Whether the scan's data stopped before its last block: the file was cut, or a marker stands in it.
    bool EndedEarly() const { return endedEarly; }
    // Where in the file libjpeg reads next; after the header, the scan's data.
    std::uint64_t Position() const { return offset - source.bytes_in_buffer; }
    // Whether there are too few bytes for all scans of a picture of this size: a block takes a bit at least.
    bool IsTooShort() const;
    // Whether the file has gone on to more scans than any honest picture of its size.
    bool HasTooManyScans() const;
    // Whether data of some length follows what was read so far.
    bool HasMore(std::size_t length) const;

    jpeg_decompress_struct info = {};

private:
    static CJpegInput& Of(j_common_ptr common) { return *static_cast<CJpegInput*>(common->client_data); }
    static void OnError(j_common_ptr common);
    static void OnMessage(j_common_ptr common, int level);
    static boolean Fill(j_decompress_ptr decoder);
    static void Skip(j_decompress_ptr decoder, long length);

    std::size_t Read(std::span<std::uint8_t> bytes) const;

    const CInputFile& file;
    std::uint64_t end;
    std::uint64_t offset = 0;  // of the byte after the buffer's last
    std::array<std::uint8_t, 65536> buffer;
    jpeg_error_mgr errors = {};
    jpeg_source_mgr source = {};
    std::jmp_buf onError;
    bool isCreated = false;
    bool endedEarly = false;
    int lostStretches = 0;
};

}  // namespace suite
