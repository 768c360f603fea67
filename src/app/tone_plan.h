// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// PlanTone and WriteTones: files converted for the handset, first to see what comes out, then for good.
//
// A plan is a conversion whose bytes are thrown away, so that what it tells is what will be written: where a
// second run gives other bytes, because the source has changed since, nothing is written. A new file is there
// whole or not at all and takes nobody's name. Both read files and load libraries, so they belong on a thread
// of their own.
#pragma once

#include "app/tone_facts.h"
#include "browser/file_job.h"

#include <optional>
#include <set>

namespace app
{

// A text and, where the number is not 0, what it counts: %1 is the number, %2 `other`.
struct ToneCount {
    platform::StringId text = platform::StringId::none;
    std::uint64_t number = 0;
    std::uint64_t other = 0;
    bool operator==(const ToneCount&) const = default;
};

// Something that the new file has no more. Where there are `words`, which are the converter's and in English,
// they are the text's %1, or stand for a text.
struct ToneLoss {
    ToneCount count;
    std::string words;
    bool operator==(const ToneLoss&) const = default;
};

// A file as it will be written.
struct ToneOutcome {
    std::uint64_t size = 0;
    std::size_t mark = 0;  // tells its bytes from others
    ToneFacts facts;
    bool operator==(const ToneOutcome& other) const { return size == other.size && mark == other.mark; }
};

struct TonePlan {
    std::string source;
    std::string target;                 // a free name beside it
    ToneFacts facts;                    // of the source
    ToneProblem problem;                // why it cannot be converted
    ToneOutcome whole;                  // with a problem, empty
    std::optional<ToneOutcome> halved;  // of a recording of 8000 Hz
    std::vector<ToneLoss> losses;
};

// NAME.mmf beside the source, or the first of "NAME (2).mmf" and so on that is neither there nor `taken`.
std::string FreeToneName(const std::string& source, const std::set<std::string>& taken);

TonePlan PlanTone(const std::string& source, const std::set<std::string>& taken);

// What is to be written.
struct ToneOrder {
    std::string source;
    std::string target;
    bool isHalved = false;
    ToneOutcome expected;
};

browser::FileJobReport WriteTones(const std::vector<ToneOrder>& orders, browser::CFileJobHost& host);

}  // namespace app
