// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCaptionHistory: the captions ever entered, offered where a caption is typed or searched for.
//
// Kept in "cap_db.ini" beside the thumbnail folder: section "caption", "Count", and one caption under each
// number from 1 to it.
#pragma once

#include <string>
#include <vector>

namespace photo
{

class CCaptionHistory
{
public:
    // `thumbDbFolder` is the data tree's; empty for no history.
    explicit CCaptionHistory(const std::string& thumbDbFolder);

    // Each caption once, in the order of entering, at most 259 bytes of each.
    std::vector<std::string> Captions() const;
    // Adds a caption that is not there yet, in exactly that spelling. Without a file it is made; into one
    // that is there a caption goes only when it was given to a photo. An empty one, or one of several lines,
    // is not kept. False when it should have been kept and could not be written.
    bool Remember(const std::string& caption, bool wasGivenToPhoto) const;

private:
    std::vector<std::string> Entries() const;

    std::string path;
};

}  // namespace photo
