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
            ahead.back()->file->WillNeed(0, CSectionInput::kBlock);
        }
    }
    // The first block of a file half-way ahead has come by now.
    for (; foreseen < std::min(paths.size(), current + kAhead / 2); ++foreseen) {
        if (ahead[foreseen - current] && foreseen != current) {
            ahead[foreseen - current]->input.Foresee();
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
