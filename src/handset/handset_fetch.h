// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetFetch: copies the handset's files of some categories into folders of their own below a folder,
// each with a record file; without a window.
//
// Files that have arrived stay, however the run ends. None that is there already is replaced.
#pragma once

#include "handset/transfer_run.h"

namespace handset
{

// The name of the folder that receives a category's files.
std::string CategoryFolder(platform::FileDataType type);
// Its name in the window.
platform::StringId CategoryTitle(platform::FileDataType type);

// What to fetch: the ticked photo categories in the mode `mainWallpaper`, else all of the one that is the
// mode.
struct FetchChoice {
    platform::FileDataType mode = platform::FileDataType::mainWallpaper;
    bool mainWallpaper = false;
    bool subWallpaper = false;
    bool myAlbum = false;
    bool frame = false;
};

class CHandsetFetch final : public CTransferRun
{
public:
    // `destination` receives the categories' folders.
    CHandsetFetch(const FetchChoice& choice, std::string destination, unsigned port, CTransferHost& shownBy);

    // Counts the files as well, and makes the folders.
    bool Start() override;
    bool Step() override;
    platform::FileDataType TypeInWork() const override;

    int Position() const { return fetched; }
    int Count() const { return total; }

private:
    struct Category {
        platform::FileDataType type;
        int count = 0;
        bool isBegun = false;
    };

    bool IsWhole() const override { return total > 0 && fetched == total; }
    std::string Remark() const override { return remark; }
    std::string FolderFor(const Category& category) const;
    bool MakeFolders();
    void CountFiles(Category& category);
    // The category of the next file; `position` becomes the file's among its own, from 0.
    std::size_t NextCategory(int& position) const;
    bool Fetch(Category& category, int position);

    std::vector<Category> categories;  // in the order in which they are fetched
    std::string folder;
    std::string remark;  // which categories could not be counted
    int total = 0;
    int fetched = 0;
};

}  // namespace handset
