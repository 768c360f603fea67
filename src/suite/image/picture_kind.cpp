// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/picture_kind.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace suite
{
namespace
{

using namespace std::string_view_literals;

struct Signature {
    std::size_t offset;
    std::string_view bytes;
    PictureKind kind;
};

// The first match counts: what is special stands before what is general.
constexpr std::array kSignatures = {
    Signature{0, "\xFF\xD8\xFF"sv, PictureKind::jpeg},
    Signature{0, "\x89PNG\r\n\x1A\n"sv, PictureKind::png},
    Signature{0, "BM"sv, PictureKind::bmp},
    Signature{0, "II*\0"sv, PictureKind::tiff},
    Signature{0, "MM\0*"sv, PictureKind::tiff},
    Signature{0, "II+\0"sv, PictureKind::tiff},
    Signature{0, "MM\0+"sv, PictureKind::tiff},
    Signature{0, "GIF8"sv, PictureKind::gif},
    Signature{8, "WEBP"sv, PictureKind::webp},
    Signature{4, "ftyphe"sv, PictureKind::heif},
    Signature{4, "ftypmif1"sv, PictureKind::heif},
    Signature{4, "ftypmsf1"sv, PictureKind::heif},
    Signature{4, "ftypavif"sv, PictureKind::heif},
    Signature{4, "ftyp"sv, PictureKind::video},
    Signature{4, "moov"sv, PictureKind::video},
    Signature{4, "mdat"sv, PictureKind::video},
    Signature{8, "AVI "sv, PictureKind::video},
    Signature{0, "\x30\x26\xB2\x75\x8E\x66\xCF\x11"sv, PictureKind::video},  // ASF and WMV
    Signature{0, "\0\0\x01\xBA"sv, PictureKind::video},                      // MPEG program stream
    Signature{0, "\0\0\x01\xB3"sv, PictureKind::video},                      // MPEG video alone
    Signature{188, "\x47"sv, PictureKind::video},                            // MPEG transport stream
};

bool Matches(std::span<const std::uint8_t> start, const Signature& signature)
{
    return start.size() >= signature.offset + signature.bytes.size() &&
           std::equal(signature.bytes.begin(), signature.bytes.end(), start.begin() + signature.offset,
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

// A bitmap without its file header begins with the 40-byte information header: one plane and a known depth.
bool IsBareBitmap(std::span<const std::uint8_t> start)
{
    constexpr std::array<int, 6> kDepths = {1, 4, 8, 16, 24, 32};
    return start.size() >= 40 && start[0] == 40 && start[1] == 0 && start[2] == 0 && start[3] == 0 &&
           start[12] == 1 && start[13] == 0 && start[15] == 0 &&
           std::find(kDepths.begin(), kDepths.end(), start[14]) != kDepths.end();
}

}  // namespace

PictureKind SniffPicture(std::span<const std::uint8_t> start)
{
    for (const Signature& signature : kSignatures) {
        const bool isTransportStream = signature.offset != 188 || (!start.empty() && start[0] == 0x47);
        if (isTransportStream && Matches(start, signature))
            return signature.kind;
    }
    return IsBareBitmap(start) ? PictureKind::dib : PictureKind::unknown;
}

}  // namespace suite
