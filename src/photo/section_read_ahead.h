// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSectionReadAhead: opens photos one after the other, while the disk already fetches what the reader will
// need of those that follow.
//
// A file's first block is asked for kAhead files ahead, and the further ones, at three stages, once those
// before them tell how far the sections reach. At most kAhead files are open at a time. What cannot be opened
// ahead of its turn is tried again when its turn comes.
#pragma once

#include "photo/section_input.h"

#include <array>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace photo
{

class CSectionReadAhead
{
public:
    static constexpr std::size_t kAhead = 128;

    explicit CSectionReadAhead(std::vector<std::string> files) : paths(std::move(files)) {}

    // The next file, at its start and valid until the next call; null when it cannot be opened (the file
    // system's LastError then says why), and when all have been given out.
    CSectionInput* Next();

private:
    static constexpr std::size_t kStages = 3;
    static constexpr std::size_t kStageLength = kAhead / (kStages + 1);

    struct OpenFile {
        explicit OpenFile(std::unique_ptr<platform::CFile> opened) : file(std::move(opened)), input(*file) {}
        std::unique_ptr<platform::CFile> file;
        CSectionInput input;
    };
    static std::unique_ptr<OpenFile> Open(const std::string& path);
    void LookAhead();

    std::vector<std::string> paths;
    std::size_t current = 0;  // index of the file that Next gives out
    std::size_t begun = 0;    // files before this index have been opened, or could not be
    // Of each stage, the index before which all files have been through it.
    std::array<std::size_t, kStages> foreseen{};
    std::deque<std::unique_ptr<OpenFile>> ahead;  // from `current` on
    std::unique_ptr<OpenFile> given;
};

}  // namespace photo
