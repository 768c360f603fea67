// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/converted_names.h"

#include "platform/file_system.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace sound
{

namespace
{

constexpr std::string_view kMark = "_Nc";

std::string Folded(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

// The folder's names that begin as the converted ones do, in small letters.
class CTakenNames
{
public:
    CTakenNames(const std::string& path, const std::string& start) : folder(path)
    {
        const auto reader = platform::Os().files->ReadFolder(folder);
        std::vector<platform::FolderEntry> piece;
        for (bool more = reader != nullptr; more; piece.clear()) {
            more = reader->Read(1000, piece);
            for (const platform::FolderEntry& entry : piece) {
                std::string name = Folded(entry.name);
                if (name.starts_with(Folded(start)))
                    names.insert(std::move(name));
            }
        }
    }

    bool Has(const std::string& name) const
    {
        return names.contains(Folded(name)) || platform::Os().files->FindFirstFile(folder + "/" + name);
    }

private:
    std::string folder;
    std::set<std::string> names;
};

}  // namespace

ConvertedNames FindConvertedNames(const std::string& folder, const std::string& sourceName)
{
    const std::size_t mark = sourceName.find(kMark);
    const std::string start =
        sourceName.substr(0, mark != std::string::npos ? mark : sourceName.rfind('.')) + std::string(kMark);
    const CTakenNames taken(folder, start);
    unsigned number = 0;
    const auto firstFree = [&](const char* extension) {
        for (;; ++number) {
            std::string name =
                number == 0 ? start + extension : fmt::format("{}{}{}", start, number, extension);
            if (!taken.Has(name))
                return name;
        }
    };
    ConvertedNames names;
    names.midi = firstFree(".MID");
    names.log = firstFree(".LOG");
    return names;
}

std::string LogPathFor(const std::string& output)
{
    const std::size_t nameStart = output.rfind('/') + 1;
    const std::size_t dot = output.rfind('.');
    const std::string path =
        (dot != std::string::npos && dot >= nameStart ? output.substr(0, dot) : output) + ".LOG";
    return path == output ? output + ".LOG" : path;
}

}  // namespace sound
