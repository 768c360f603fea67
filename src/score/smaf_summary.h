// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// SummariseSmaf: what is told of a SMAF file in a few numbers.
#pragma once

#include "score/smaf_file.h"

namespace score
{

struct SmafSummary {
    std::uint64_t milliseconds = 0;
    std::size_t notes = 0;      // recorded sounds included
    std::size_t channels = 0;   // that have notes
    std::size_t polyphony = 0;  // the most notes that sound at once
    std::size_t waves = 0;
    std::string title;
};

SmafSummary SummariseSmaf(const SmafFile& file);

}  // namespace score
