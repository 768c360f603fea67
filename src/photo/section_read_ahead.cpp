// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/section_read_ahead.h"

#include "platform/services.h"

#include <algorithm>
#include <utility>

namespace photo
{

std::unique_ptr<CSectionReadAhead::OpenFile> CSectionReadAhead::Open(const std::string& path)
{
    auto file = platform::Os().files->Open(path, platform::OpenMode::read);
    return file ? std::make_unique<OpenFile>(std::move(file)) : nullptr;
}

void CSectionReadAhead::LookAhead()
{
    for (; begun < std::min(paths.size(), current + kAhead); ++begun) {
        ahead.push_back(Open(paths[begun]));
        if (ahead.back() && begun != current) {
            ahead.back()->input.ForeseeStart();
        }
    }
    for (std::size_t i = 0; i < kStages; ++i) {
        const std::size_t end = std::min(paths.size(), current + kAhead - (i + 1) * kStageLength);
        for (; foreseen[i] < end; ++foreseen[i]) {
            if (ahead[foreseen[i] - current] && foreseen[i] != current) {
                ahead[foreseen[i] - current]->input.ForeseeMore();
            }
        }
    }
}

CSectionInput* CSectionReadAhead::Next()
{
    given = nullptr;
    if (current >= paths.size()) {
        return nullptr;
    }
    LookAhead();
    given = std::move(ahead.front());
    ahead.pop_front();
    if (!given) {
        given = Open(paths[current]);
    }
    ++current;
    return given ? &given->input : nullptr;
}

}  // namespace photo
