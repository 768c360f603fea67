// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CThumbnailStore: thumbnails kept in the archive of their folder, and taken from there while the file is
// unchanged.
#pragma once

#include "browser/caption_book.h"
#include "browser/thumb_db_mgr.h"
#include "platform/image.h"

#include <optional>
#include <string>

namespace archive
{
class CPackageArchive;
struct AddOptions;
struct PackageMember;
}  // namespace archive

namespace browser
{

struct StoredThumbnail {
    platform::BitmapHandle bitmap;
    platform::FileTime thirdTime = 0;
    std::string dateText;
};

class CThumbnailStore
{
public:
    explicit CThumbnailStore(CThumbDbMgr& owner) : manager(owner), book(owner.DbFolder()) {}

    // Opens the archive of a folder for changes, making it when there is none. It is closed by the caller, or
    // by its end.
    bool OpenForAdding(archive::CPackageArchive& opened, const std::string& folder) const;

    // The stored thumbnail of the file when the file still has the times and length that it had then; a file
    // of length 0 is not compared. A stale member is removed, but for one that holds texts: that one waits
    // for Keep.
    std::optional<StoredThumbnail> Fetch(const std::string& path, const platform::FileFacts& facts);
    // Keeps a thumbnail; false when the store cannot take it. It takes over the texts of the member whose
    // place it takes, or without one those that the book has; a date alone gives way to `dateText`.
    bool Keep(const std::string& path, const platform::Bitmap& bitmap, const platform::FileFacts& facts,
              platform::FileTime thirdTime, const std::string& dateText);
    // Sets the three texts of a member; false when the archive or the member is missing.
    bool SetTexts(const std::string& path, const std::string& entryName, const std::string& caption,
                  const std::string& timeStampText, const std::string& secondText);

    CCaptionBook& Book() { return book; }

    static std::string EntryName(const std::string& path);
    static MemberTexts TextsOf(const archive::PackageMember& member);
    // The member of that file: the one of exactly its name, else one whose name differs in case only and
    // belongs to no file of its own.
    static std::optional<std::size_t> FindMember(const archive::CPackageArchive& opened,
                                                 const std::string& path);

private:
    bool OpenOrMake(archive::CPackageArchive& opened, const std::string& archivePath) const;
    static void Retire(archive::CPackageArchive& opened, std::size_t index, bool isDamaged);

    bool PutInPlace(archive::CPackageArchive& opened, const std::string& temporary, const std::string& path,
                    archive::AddOptions options);

    CThumbDbMgr& manager;
    CCaptionBook book;
};

}  // namespace browser
