// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is told about a selection: of one file everything, of several what they have in common.
//
// Reads files and the thumbnail store, so it belongs on a thread of its own.
#pragma once

#include "app/selection_reader.h"
#include "app/tone_facts.h"
#include "photo/caption_store.h"

#include <atomic>

namespace ui
{

// A value of several files: the first one's, and whether all have it.
template <typename Value> struct Common {
    Value value = {};
    bool isSame = true;
};

struct PhotoInfo {
    bool found = false;                              // whether the one file, or any of several, is there
    app::FileDescription file;                       // of one file
    std::string exifText;                            // of one picture; empty for none
    app::ToneFacts tone;                             // of one ring tone or recording
    platform::StringId toneNeeds = {};               // what is to be installed to play it, if anything
    std::vector<photo::PhotoTexts> texts;            // of each file that carries texts, in their order
    std::size_t looked = 0;                          // at so many files, for the values below
    std::uint64_t bytes = 0;                         // of all of them
    Common<unsigned> types;                          // type bits of the names
    Common<platform::Extent> pixels;                 // 0 by 0 for none
    std::array<platform::FileTime, 2> created = {};  // earliest and latest; 0 for none
    std::array<platform::FileTime, 2> modified = {};
    std::array<platform::FileTime, 2> taken = {};
};

struct PhotoQuestion {
    std::vector<std::string> paths;     // all that are selected
    std::vector<std::string> carriers;  // those among them that carry texts
    bool isMedia = true;                // nothing but pictures, clips and sounds
    std::string storeFolder;            // of the thumbnail store
};

// Facts are read of the first thousand files at most, texts of all. Ends soon once `isStale` is set; the
// answer is then of no use.
PhotoInfo ReadPhotoInfo(const PhotoQuestion& question, const std::atomic<bool>& isStale);

}  // namespace ui
