// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCaptionBook: the users' texts a second time, by what a photo is instead of where it lies.
//
// Thumbnail archives come and go: they may be deleted to make room, be damaged, or lose their folder when
// that is renamed by another program. The book, "captions.tsv" beside the store's folder (layout:
// docs/formats/captions.md), gives a photo of the same name, size and time its texts back when its next
// member is made. It grows by lines at its end, and each time its size has doubled it is written anew without
// what is out of date, when that is half of it.
//
// Several processes may use one book. One object, one thread.
#pragma once

#include "platform/file_system.h"

#include <span>
#include <string>
#include <unordered_map>

namespace browser
{

struct MemberTexts {
    std::string caption;
    std::string timeStamp;
    std::string secondText;
    bool operator==(const MemberTexts&) const = default;
    bool IsEmpty() const { return caption.empty() && timeStamp.empty() && secondText.empty(); }
};

struct CaptionedFile {
    std::string name;  // without its folder
    std::uint64_t size = 0;
    platform::FileTime lastWriteTime = 0;
    MemberTexts texts;  // empty ones for a photo that has none any more
};

class CCaptionBook
{
public:
    // `storeFolder` is that of the thumbnail store; empty for no book.
    explicit CCaptionBook(const std::string& storeFolder);

    // On the medium when it returns; false when it could not be written.
    bool Record(std::span<const CaptionedFile> files);
    // Empty for a file that has none.
    MemberTexts Find(const std::string& name, std::uint64_t size, platform::FileTime lastWriteTime);

private:
    void TakeInChanges();
    static bool Append(platform::CFile& file, std::uint64_t end, std::string added);
    bool WriteAnew();

    std::string path;
    platform::FileStamp known;
    std::size_t lines = 0;
    std::unordered_map<std::string, MemberTexts> texts;  // by name, size and time
};

}  // namespace browser
