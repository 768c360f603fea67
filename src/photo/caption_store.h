// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCaptionStore: the three texts that a photo carries, in its member of the thumbnail store.
//
// A photo without a member gets one before its texts are stored, with its thumbnail, or without any where
// none can be made of it. One archive is written once for all of its photos. Blocks; belongs on a thread of
// its own for more than a few photos.
#pragma once

#include "browser/file_job.h"
#include "browser/thumb_db_mgr.h"
#include "browser/thumbnail_store.h"

#include <optional>
#include <string>
#include <vector>

namespace photo
{

// The time stamp is a day, "2004/05/17".
using PhotoTexts = browser::MemberTexts;

// What is not given keeps its value; an empty text clears it.
struct TextChange {
    std::optional<std::string> caption;
    std::optional<std::string> timeStamp;
    std::optional<std::string> secondText;
};

struct CaptionReport {
    std::size_t stored = 0;
    std::vector<platform::FileProblem> problems;  // each photo whose texts are as before
    bool cancelled = false;
};

class CCaptionStore
{
public:
    explicit CCaptionStore(browser::CThumbDbMgr& storeManager) : manager(storeManager), store(storeManager) {}

    // Of a photo without a member, and without a store, all are empty. Nothing is made or changed.
    PhotoTexts Get(const std::string& path) const;
    // The texts of each; folders are read once for neighbours in the list.
    std::vector<PhotoTexts> Get(const std::vector<std::string>& paths) const;
    CaptionReport Set(const std::vector<std::string>& paths, const TextChange& change,
                      browser::CFileJobHost& host);

private:
    using Group = std::vector<std::string>;  // photos of one folder
    void SetInFolder(const std::string& folder, const Group& paths, const TextChange& change,
                     CaptionReport& report);
    std::vector<bool> FindHeld(const std::string& folder, const Group& paths) const;
    std::string WriteTexts(const std::string& folder, const Group& paths, const TextChange& change);
    std::string MakeMember(const std::string& path) const;

    browser::CThumbDbMgr& manager;
    browser::CThumbnailStore store;
};

}  // namespace photo
