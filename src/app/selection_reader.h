// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSelectionReader: what a number of files and folders come to, read step by step.
//
// Folders are counted with everything below them; links inside them are counted and not followed. It touches
// nothing but the file system, so it may run on any thread, one at a time.
#pragma once

#include "platform/file_system.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace app
{

struct SelectionTotals {
    std::uint64_t files = 0;
    std::uint64_t folders = 0;
    std::uint64_t bytes = 0;
    std::uint64_t unreadable = 0;   // could not be looked at, or into
    platform::FileTime oldest = 0;  // by last change, among the files; 0 for none
    platform::FileTime newest = 0;
};

class CSelectionReader
{
public:
    explicit CSelectionReader(const std::vector<std::string>& paths);

    // Looks at about `most` further files; false when all is done.
    bool Step(std::size_t most);
    const SelectionTotals& Totals() const { return totals; }

private:
    void Look(const std::string& path, bool isLink);

    struct OpenFolder {
        std::string path;
        std::unique_ptr<platform::CFolderReader> reader;
    };
    std::deque<std::string> selected;
    std::vector<std::string> waiting;  // folders below those selected
    OpenFolder folder;
    SelectionTotals totals;
};

// What is told about one file.
struct FileDescription {
    platform::FileFacts facts;
    bool found = false;
    int width = 0;  // of a picture; 0 for everything else
    int height = 0;
};
// Reads the header of a picture, and not its pixels. Any thread.
FileDescription DescribeFile(const std::string& path);

}  // namespace app
