// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSectionReadAhead: opens photos one after the other, while the disk already fetches what the reader will
// need of those that follow.
//
// A file's first block is asked for some dozens of files ahead, and the rest of its sections once that block
// tells how far they reach. At most kAhead files are open at a time. What cannot be opened ahead of its turn
// is tried again when its turn comes.
#pragma once

#include "photo/section_input.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace photo
{

class CSectionReadAhead
{
public:
    static constexpr std::size_t kAhead = 64;

    explicit CSectionReadAhead(std::vector<std::string> files) : paths(std::move(files)) {}

    // The next file, at its start and valid until the next call; null when it cannot be opened (the file
    // system's LastError then says why), and when all have been given out.
    CSectionInput* Next();

private:
    struct OpenFile {
        explicit OpenFile(std::unique_ptr<platform::CFile> opened) : file(std::move(opened)), input(*file) {}
        std::unique_ptr<platform::CFile> file;
        CSectionInput input;
    };
    static std::unique_ptr<OpenFile> Open(const std::string& path);
    void LookAhead();

    std::vector<std::string> paths;
    std::size_t current = 0;   // index of the file that Next gives out
    std::size_t begun = 0;     // files before this index have been opened, or could not be
    std::size_t foreseen = 0;  // files before this index have had the rest of their sections asked for
    std::deque<std::unique_ptr<OpenFile>> ahead;  // from `current` on
    std::unique_ptr<OpenFile> given;
};

}  // namespace photo
