// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_reader.h"

#include "score/crc16.h"
#include "score/smaf_text.h"
#include "score/smaf_track_reader.h"

#include <fmt/format.h>

#include <algorithm>

namespace score
{

namespace
{

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kCrcSize = 2;

class CSmafReader
{
public:
    CSmafReader(std::span<const std::uint8_t> bytes, std::string& error)
        : whole(bytes), cursor(bytes, 0, error)
    {
    }

    std::optional<SmafReading> Read()
    {
        if (!CheckFrame()) {
            return std::nullopt;
        }
        SmafOpenChunk file = walk.Open(cursor, 0);
        CSmafCursor body = file.body.Piece(file.body.Remaining() - kCrcSize);
        for (bool isFirst = true; !body.AtEnd(); isFirst = false) {
            SmafOpenChunk chunk = walk.Open(body, 1);
            if (body.IsGood() && isFirst != (chunk.tag == "CNTI")) {
                chunk.body.Fail(chunk.body.Offset() - kHeaderSize,
                                "the contents information has to be the first chunk, and the only one");
            }
            ReadChunk(chunk);
        }
        return cursor.IsGood() ? std::optional(std::move(reading)) : std::nullopt;
    }

private:
    bool CheckFrame()
    {
        CSmafCursor header = cursor;
        const auto tag = header.Block(4);
        if (tag.empty() || std::string_view(reinterpret_cast<const char*>(tag.data()), 4) != "MMMD") {
            return cursor.Fail(0, "this is no SMAF file");
        }
        const std::uint64_t length = std::uint64_t{header.Long()} + kHeaderSize;
        constexpr std::uint64_t kLeast = kHeaderSize + kHeaderSize + kCrcSize;
        if (header.IsGood() && (length != whole.size() || length < kLeast)) {
            return cursor.Fail(
                4, fmt::format("the file says that it has {} bytes, and has {}", length, whole.size()));
        }
        if (header.IsGood() && Crc16(whole.first(whole.size() - kCrcSize)) !=
                                   (whole[whole.size() - 2] << 8 | whole[whole.size() - 1])) {
            return cursor.Fail(whole.size() - kCrcSize, "the checksum is wrong");
        }
        return header.IsGood();
    }

    void ReadChunk(SmafOpenChunk& chunk)
    {
        if (chunk.tag == "CNTI") {
            ReadContents(chunk.body);
        } else if (chunk.tag == "OPDA") {
            ReadOptionalData(chunk.body);
        } else if (chunk.tag == "MTR") {
            reading.file.scores.push_back(ReadSmafScore(chunk, walk));
        } else if (chunk.tag == "ATR") {
            reading.file.audios.push_back(ReadSmafAudio(chunk, walk));
        }
    }

    void ReadContents(CSmafCursor& body)
    {
        SmafContents& contents = reading.file.contents;
        body.Byte();  // the class
        contents.type = body.Byte();
        contents.textCode = static_cast<SmafTextCode>(body.Byte());
        contents.copyStatus = body.Byte();
        contents.copyCount = body.Byte();
        // Where a comma of two bytes would end is not known.
        const bool isWide =
            contents.textCode == SmafTextCode::ucs2 || contents.textCode == SmafTextCode::utf16;
        while (!body.AtEnd() && !isWide) {
            ReadOption(body);
        }
    }

    void ReadOption(CSmafCursor& body)
    {
        SmafContents& contents = reading.file.contents;
        const std::size_t begin = body.Offset();
        const auto tag = body.Block(2);
        if (body.Byte() != ':') {
            body.Fail(begin, "a text of the contents information has no tag");
            return;
        }
        std::vector<std::uint8_t> text;
        while (!body.AtEnd() && body.Peek() != ',') {
            if (body.Peek() == '\\') {
                body.Byte();
            }
            text.push_back(body.Byte());
            if (contents.textCode == SmafTextCode::shiftJis && IsShiftJisLead(text.back()) && !body.AtEnd()) {
                text.push_back(body.Byte());
            }
        }
        if (!body.AtEnd()) {
            body.Byte();
        }
        if (body.IsGood()) {
            contents.options.push_back({{tag.begin(), tag.end()}, DecodeSmafText(text, contents.textCode)});
        }
    }

    void ReadOptionalData(CSmafCursor& body)
    {
        while (!body.AtEnd()) {
            SmafOpenChunk chunk = walk.Open(body, 2);
            while (chunk.tag == "Dch" && !chunk.body.AtEnd()) {
                const auto tag = chunk.body.Block(2);
                const auto text = chunk.body.Block(chunk.body.Word());
                if (chunk.body.IsGood()) {
                    reading.file.contents.options.push_back(
                        {{tag.begin(), tag.end()},
                         DecodeSmafText(text, static_cast<SmafTextCode>(chunk.number))});
                }
            }
        }
    }

    std::span<const std::uint8_t> whole;
    CSmafCursor cursor;
    SmafReading reading;
    CSmafChunkWalk walk{reading.chunks};
};

}  // namespace

std::optional<SmafReading> ReadSmaf(std::span<const std::uint8_t> bytes, std::string& error)
{
    error.clear();
    return CSmafReader(bytes, error).Read();
}

}  // namespace score
