// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/command_line.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <charconv>
#include <filesystem>
#include <utility>

namespace ui
{

namespace
{

constexpr int kLargestShot = 8192;

bool IsSuiteWord(const std::string& word)
{
    const std::string lower = browser::LowerCase(word);
    return word.starts_with('/') && word.find('/', 1) == std::string::npos &&
           (lower.find("load") != std::string::npos || lower.find("pnplaunch") != std::string::npos) &&
           !platform::Os().files->FindFirstFile(word);
}

bool ReadSide(std::string_view text, int& side)
{
    const char* end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, side);
    return failure == std::errc() && stop == end && side > 0 && side <= kLargestShot;
}

bool ReadSize(const std::string& text, platform::Extent& size)
{
    const std::size_t middle = text.find('x');
    const std::string_view whole = text;
    return middle != std::string::npos && ReadSide(whole.substr(0, middle), size.width) &&
           ReadSide(whole.substr(middle + 1), size.height);
}

std::string Absolute(const std::string& path, const std::string& currentFolder)
{
    std::string normal = (std::filesystem::path(currentFolder) / path).lexically_normal().string();
    if (normal.size() > 1 && normal.ends_with('/'))
        normal.pop_back();
    return normal;
}

CommandLine Refuse(const std::string& reason)
{
    CommandLine line;
    line.task = Task::refuse;
    line.error = reason;
    return line;
}

// Where the window opens; a file stands for its folder.
bool TakePath(CommandLine& line, const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    if (!facts)
        return false;
    line.folder = facts->isFolder ? path : std::string(browser::FolderOf(path));
    if (!facts->isFolder)
        line.fileName = browser::FileName(path);
    return true;
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words, const std::string& currentFolder)
{
    CommandLine line;
    bool pathsOnly = false;
    bool hasPath = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool isOption = !pathsOnly && word.size() > 1 && word.starts_with('-');
        const bool hasNext = i + 1 < words.size();
        if (isOption && word == "--") {
            pathsOnly = true;
        } else if (isOption && (word == "--version" || word == "--help" || word == "-h")) {
            line.task = word == "--version" ? Task::version : Task::help;
            return line;
        } else if (isOption && word == "--shot" && hasNext) {
            line.task = Task::shot;
            line.shotFile = Absolute(words[++i], currentFolder);
        } else if (isOption && word == "--size" && hasNext) {
            if (!ReadSize(words[++i], line.shotSize))
                return Refuse(words[i] + ": not a size such as 1280x800");
        } else if (isOption) {
            return Refuse(word + ": unknown option, or its value is missing");
        } else if (!pathsOnly && IsSuiteWord(word)) {
            line.suiteWords += (line.suiteWords.empty() ? "" : " ") + word;
        } else if (std::exchange(hasPath, true)) {
            return Refuse(word + ": only one folder can be opened");
        } else if (!TakePath(line, Absolute(word, currentFolder))) {
            return Refuse(word + ": no such file or folder");
        }
    }
    return line;
}

std::string UsageText()
{
    return "usage: kelvo [FOLDER | FILE]\n"
           "       kelvo --shot FILE.png [--size WIDTHxHEIGHT] [FOLDER]\n"
           "       kelvo --version | --help\n"
           "\n"
           "Opens a window on FOLDER, or on the folder of FILE with FILE selected.\n"
           "  --shot FILE.png  write a picture of the window once its thumbnails are made, and end\n"
           "  --size WxH       the size of that window (1280x800)\n"
           "KELVO_THEME=light or KELVO_THEME=dark chooses the colours.\n";
}

}  // namespace ui
