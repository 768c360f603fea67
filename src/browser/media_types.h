// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Media types and filters: which files a list shows, and what kind of media each one is.
//
// A type is told by the extension alone, without regard to case. Patterns are "*" (every name) and "*.ext".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace browser
{

inline constexpr unsigned kTypePicture = 1;
inline constexpr unsigned kTypeVideo = 2;
inline constexpr unsigned kTypeSound = 4;
inline constexpr unsigned kTypeHandsetImage = 16;
// Types of which a thumbnail is made.
inline constexpr unsigned kTypesWithThumbnail = kTypePicture | kTypeVideo | kTypeHandsetImage;

inline constexpr std::string_view kPictureFilter = "*.jpg;*.jpeg;*.png;*.bmp;*.dib;*.rle;*.tif;*.tiff;*.gif";
inline constexpr std::string_view kVideoFilter = "*.avi;*.mpg;*.mpeg;*.wmv;*.asf;*.mp4";
inline constexpr std::string_view kSoundFilter = "*.mmf;*.mid";
inline constexpr std::string_view kHandsetProgramFilter = "*.jad;";
inline constexpr std::string_view kHandsetImageFilter = "*.sss;";
inline constexpr std::string_view kSearchResultFilter = ";*.asr";
inline constexpr std::string_view kColumnHeadings = "Name|Size|Type|Modified";
// Of one more column, which is shown on demand.
inline constexpr std::string_view kDateTakenHeading = "Date Taken";

inline constexpr int kFilterAllFiles = 0;
inline constexpr int kFilterPhoto = 1;
inline constexpr int kFilterVideo = 2;
inline constexpr int kFilterMedia = 23;

// The sum of the type bits of the file's extension; 0 for a file of no known type.
unsigned TypeBits(std::string_view fileName);

// The pattern list of a filter mode, divided by ";" and with empty patterns in between; empty for a
// number that is no mode.
std::string FilterPatterns(int mode);

// Names held against a pattern list; empty patterns match nothing.
class CPatternList
{
public:
    explicit CPatternList(std::string_view patterns);
    bool Matches(std::string_view fileName) const;

private:
    bool everything = false;
    std::vector<std::string> extensions;  // lower case, without the dot
};

}  // namespace browser
