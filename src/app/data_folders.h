// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDataFolders: the user's data tree, and where its folders are recorded.
//
// The paths are registry values under the key that carries the program's own version; a value that names no
// usable folder is replaced by the default. The three roots are held with a trailing separator, the other
// folders as they are recorded. A root that nothing can be made for stays empty, and nothing is made below
// it.
#pragma once

#include "platform/types.h"

#include <string>
#include <vector>

namespace app
{

enum class DataFolderKind {
    mobileDownload = 0,
    favourites = 1,
    photo = 2,
    photoSample = 3,
    ring = 4,
    ringSample = 5,
    frame = 6,
    frameSample = 7,
    animation = 8,
    temp = 9,
    tempDdr = 10,
    tempCompose = 11,
    tempUpload = 12,
    tempDownload = 13,
};

class CDataFolders
{
public:
    // Reads the recorded folders, or records and makes the default ones, and makes the tree below them with
    // the samples. Called once, before the application object starts.
    void Prepare();

    // The path of a kind, with a trailing separator. A number that is no kind leaves `path` alone. Always
    // true.
    bool GetFolderPath(int kind, std::string& path) const;
    std::string FolderPath(DataFolderKind kind) const;

    // Takes the names of the direct sub-folders but "Sample" into albumNames, in name order. False, with
    // albumNames as they were, when there are none or the folder cannot be listed.
    bool ListAlbums(const std::string& folder);
    // The number of albums of a favourite folder (photo, ring, frame), or -1 when there are none.
    int CountAlbums(DataFolderKind kind);
    const std::vector<std::string>& AlbumNames() const { return albumNames; }

    // True when the folder is there or could be made (one level).
    static bool EnsureFolder(const std::string& path);
    // Makes every missing folder of the path.
    static void EnsurePath(const std::string& path);

    const std::string& FavouriteRoot() const { return favouriteRoot; }
    const std::string& TempRoot() const { return tempRoot; }
    const std::string& MobileDownloadRoot() const { return mobileDownloadRoot; }
    const std::string& ThumbDbFolder() const { return thumbDbFolder; }
    // Where changes to files are written down before they happen; beside the thumbnail folder, empty without.
    std::string JournalFolder() const;
    const std::string& OutboxFolder() const { return outboxFolder; }
    const std::string& SearchFolder() const { return searchFolder; }
    const std::string& VersionText() const { return versionText; }
    // What could not be prepared, in words for the user; empty when all is well.
    const std::vector<std::string>& Problems() const { return problems; }

private:
    bool ReadFolderValues();
    void WriteDefaultFolderValues();
    void CreateTree();
    void CopySampleFolder(DataFolderKind kind, const std::string& name);
    void FindProblems();

    std::string registryKey;
    std::string versionText;
    std::string favouriteRoot;
    std::string tempRoot;
    std::string mobileDownloadRoot;
    std::string thumbDbFolder;
    std::string outboxFolder;
    std::string searchFolder;
    std::vector<std::string> albumNames;
    std::vector<std::string> problems;
};

// "1.00.0000.01" for the version of the program file; empty when it has none.
std::string ProgramVersionText();

}  // namespace app
