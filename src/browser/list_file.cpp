// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_file.h"

#include "browser/media_types.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <span>

namespace browser
{

namespace
{

std::string NumberedLines(const std::vector<std::string>& files)
{
    std::string lines;
    for (std::size_t i = 0; i < files.size(); ++i) {
        lines += fmt::format("File{}={}\n", i + 1, files[i]);
    }
    return lines;
}

bool HasLineBreak(const std::string& file)
{
    return file.find_first_of("\r\n") != std::string::npos;
}

int Write(const std::string& path, const std::string& text)
{
    return platform::Os().files->ReplaceFile(path, std::as_bytes(std::span(text))) ? 1 : 0;
}

}  // namespace

bool IsPictureFile(const std::string& path)
{
    if ((TypeBits(path) & kTypePicture) == 0) {
        return false;
    }
    const auto facts = platform::Os().files->FindFirstFile(path);
    return !facts || !facts->isFolder;
}

int WriteFileList(const std::string& path, const std::vector<std::string>& selected)
{
    if (path.empty() || selected.empty()) {
        return 0;
    }
    std::vector<std::string> pictures = selected;
    std::erase_if(pictures,
                  [](const std::string& file) { return HasLineBreak(file) || !IsPictureFile(file); });
    return Write(path, fmt::format("[Files]\n{}Count={}\n", NumberedLines(pictures), pictures.size()));
}

int WriteSelectionList(const std::string& path, const std::vector<std::string>& selected)
{
    if (path.empty() || selected.empty()) {
        return 0;
    }
    std::vector<std::string> files = selected;
    std::erase_if(files, HasLineBreak);
    return Write(path, fmt::format("[Files]\nCount={}\n{}", files.size(), NumberedLines(files)));
}

}  // namespace browser
