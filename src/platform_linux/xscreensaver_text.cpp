// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/xscreensaver_text.h"

#include <algorithm>
#include <cstdint>

namespace platform_linux
{

namespace
{

constexpr std::string_view kShow = "glslideshow";
constexpr std::string_view kShowEntry = "GL: glslideshow --root";
// Ends an entry of the list of screen savers: a line break within the value, then one within the text.
constexpr std::string_view kEntryEnd = "\\n";

constexpr std::string_view kNextLine = "\\\n";

struct Span {
    std::size_t begin = 0;  // of the line
    std::size_t value = 0;
    std::size_t end = 0;  // behind the line break
};

std::size_t EndOfEntry(std::string_view text, std::size_t at)
{
    while (true) {
        const std::size_t lineEnd = text.find('\n', at);
        if (lineEnd == std::string_view::npos)
            return text.size();
        at = lineEnd + 1;
        if (lineEnd == 0 || text[lineEnd - 1] != '\\')
            return at;
    }
}

std::string_view KeyOf(std::string_view line)
{
    const std::size_t begin = line.find_first_not_of(" \t*.");
    const std::size_t colon = line.find(':');
    if (begin == std::string_view::npos || colon == std::string_view::npos || colon < begin)
        return {};
    const std::string_view key = line.substr(begin, colon - begin);
    return key.substr(0, key.find_last_not_of(" \t") + 1);
}

// The last one counts.
std::optional<Span> Find(std::string_view text, std::string_view key)
{
    std::optional<Span> found;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = EndOfEntry(text, at);
        const std::string_view entry = text.substr(at, end - at);
        const bool isComment = entry.starts_with('#') || entry.starts_with('!');
        if (!isComment && KeyOf(entry.substr(0, entry.find('\n'))) == key)
            found = Span{at, at + entry.find(':') + 1, end};
        at = end;
    }
    return found;
}

// The place of the picture show in a list of screen savers; nothing when it is not in it.
std::optional<int> PlaceOfShow(std::string_view programs)
{
    int place = 0;
    for (std::size_t at = 0; at < programs.size(); ++place) {
        const std::size_t end = programs.find(kEntryEnd, at);
        if (programs.substr(at, end == std::string_view::npos ? end : end - at).find(kShow) !=
            std::string_view::npos)
            return place;
        if (end == std::string_view::npos)
            break;
        at = end + kEntryEnd.size();
    }
    return std::nullopt;
}

// The list with the picture show as its first one.
std::string WithShow(std::string_view programs)
{
    if (programs.starts_with(kNextLine))
        programs.remove_prefix(kNextLine.size());
    std::string list = std::string(kNextLine) + "  " + std::string(kShowEntry) + " " + std::string(kEntryEnd);
    if (!programs.empty())
        list += std::string(kNextLine) + std::string(programs);
    return list;
}

}  // namespace

std::optional<std::string> XScreenSaverValue(std::string_view text, std::string_view key)
{
    const auto found = Find(text, key);
    if (!found)
        return std::nullopt;
    std::string_view value = text.substr(found->value, found->end - found->value);
    value.remove_prefix(std::min(value.size(), value.find_first_not_of(" \t")));
    // A backslash at the very end goes on with nothing.
    value = value.substr(0, value.find_last_not_of(" \t\n\\") + 1);
    return std::string(value);
}

std::string WithXScreenSaverValue(std::string_view text, std::string_view key, std::string_view value)
{
    const std::string entry = std::string(key) + ":\t" + std::string(value) + "\n";
    const auto found = Find(text, key);
    if (found)
        return std::string(text.substr(0, found->begin)) + entry + std::string(text.substr(found->end));
    const bool needsBreak = !text.empty() && !text.ends_with('\n');
    return std::string(text) + (needsBreak ? "\n" : "") + entry;
}

std::string WithPictureShow(std::string_view text, std::string_view defaults, const std::string& folder)
{
    auto programs = XScreenSaverValue(text, "programs");
    if (!programs)
        programs = XScreenSaverValue(defaults, "programs");
    if (!programs || !PlaceOfShow(*programs))
        programs = WithShow(programs.value_or(""));
    std::string result = WithXScreenSaverValue(text, "programs", *programs);
    result = WithXScreenSaverValue(result, "selected", std::to_string(PlaceOfShow(*programs).value_or(0)));
    result = WithXScreenSaverValue(result, "mode", "one");
    result = WithXScreenSaverValue(result, "grabDesktopImages", "False");
    result = WithXScreenSaverValue(result, "grabVideoFrames", "False");
    result = WithXScreenSaverValue(result, "chooseRandomImages", "True");
    return WithXScreenSaverValue(result, "imageDirectory", folder);
}

}  // namespace platform_linux
