// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/zlib_stream.h"

#include <array>
#include <zlib.h>

namespace archive
{
namespace
{

constexpr int kLevel = 6;
constexpr int kShortWrite = -1;

using Block = std::array<std::byte, kStreamBlock>;

Bytef* ZlibBytes(Block& block)
{
    return reinterpret_cast<Bytef*>(block.data());
}

void Rewind(z_stream& stream, Block& output)
{
    stream.next_out = ZlibBytes(output);
    stream.avail_out = kStreamBlock;
}

// False at the end of the input.
bool Refill(z_stream& stream, Block& input, CStreamEnds& ends)
{
    stream.next_in = ZlibBytes(input);
    stream.avail_in = static_cast<uInt>(ends.Read(input));
    return stream.avail_in > 0;
}

// Writes what the output block holds and makes it empty.
bool Drain(z_stream& stream, Block& output, CStreamEnds& ends)
{
    const std::size_t produced = kStreamBlock - stream.avail_out;
    Rewind(stream, output);
    return produced == 0 || ends.Write(std::span(output).first(produced));
}

int FinalResult(int result, const CStreamEnds& ends)
{
    if (ends.Aborted())
        return kUserAbort;
    return result == Z_OK || result == Z_STREAM_END ? 0 : result;
}

}  // namespace

struct CDeflater::State {
    z_stream stream = {};
    bool ready = false;
};

CDeflater::CDeflater() : state(std::make_unique<State>()) {}

CDeflater::~CDeflater()
{
    if (state->ready)
        deflateEnd(&state->stream);
}

int CDeflater::Run(CStreamEnds& ends)
{
    z_stream& stream = state->stream;
    if (!state->ready) {
        const int made = deflateInit_(&stream, kLevel, ZLIB_VERSION, static_cast<int>(sizeof(z_stream)));
        if (made != Z_OK)
            return made;
        state->ready = true;
    }
    Block input;
    Block output;
    Rewind(stream, output);
    stream.avail_in = 0;
    int result = Z_OK;
    while (result == Z_OK && !ends.Aborted()) {
        if (stream.avail_in == 0 && !Refill(stream, input, ends))
            break;
        result = deflate(&stream, Z_NO_FLUSH);
        if (stream.avail_out == 0 && !Drain(stream, output, ends))
            result = kShortWrite;
        ends.Consumed(stream.total_in);
    }
    while (result == Z_OK && !ends.Aborted()) {
        result = deflate(&stream, Z_FINISH);
        if (!Drain(stream, output, ends))
            result = kShortWrite;
    }
    ends.Consumed(stream.total_in);
    deflateReset(&stream);
    return FinalResult(result, ends);
}

int Inflate(CStreamEnds& ends)
{
    z_stream stream = {};
    int result = inflateInit_(&stream, ZLIB_VERSION, static_cast<int>(sizeof(z_stream)));
    if (result != Z_OK)
        return result;
    Block input;
    Block output;
    Rewind(stream, output);
    while (result == Z_OK && !ends.Aborted()) {
        const bool more = stream.avail_in > 0 || Refill(stream, input, ends);
        result = inflate(&stream, more ? Z_NO_FLUSH : Z_FINISH);
        // A full output block is no error, only a reason to come again.
        if (result == Z_BUF_ERROR && stream.avail_out < kStreamBlock)
            result = Z_OK;
        if (!Drain(stream, output, ends))
            result = kShortWrite;
        ends.Consumed(stream.total_in);
    }
    inflateEnd(&stream);
    return FinalResult(result, ends);
}

std::string ResultText(int result)
{
    if (result == 0)
        return "Success";
    return result == kUserAbort ? "User Abort" : "Zlib Error";
}

}  // namespace archive
