// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/folder_listing.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace suite
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kLongestLocalName = 240;
constexpr std::size_t kLongestExtension = 20;

void AppendUtf8(std::string& text, std::uint32_t code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLeads[more] | code >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
}

// The character that an entity ("amp", "#38", "#x26") stands for; nothing when it is none.
std::optional<std::uint32_t> EntityCode(std::string_view entity)
{
    constexpr std::pair<std::string_view, char> kNamed[] = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto& [name, character] : kNamed) {
        if (entity == name)
            return static_cast<std::uint32_t>(character);
    }
    if (!entity.starts_with('#'))
        return std::nullopt;
    const bool hex = entity.starts_with("#x") || entity.starts_with("#X");
    const std::string_view digits = entity.substr(hex ? 2 : 1);
    std::uint32_t code = 0;
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, code, hex ? 16 : 10);
    const bool isCharacter = code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    return error == std::errc() && last == end && isCharacter ? std::optional(code) : std::nullopt;
}

// The text with its entities resolved; what looks like one and is none stays as it is.
std::string Resolved(std::string_view text)
{
    constexpr std::size_t kLongestEntity = 10;
    std::string resolved;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t end =
            text[at] == '&' ? text.substr(at, kLongestEntity).find(';') : std::string_view::npos;
        const auto code =
            end == std::string_view::npos ? std::nullopt : EntityCode(text.substr(at + 1, end - 1));
        if (code) {
            AppendUtf8(resolved, *code);
            at += end;
        } else {
            resolved += text[at];
        }
    }
    return resolved;
}

// Walks the attributes of an element from behind its name; leaves the rest of the listing in `text`.
ListedFile TakeAttributes(std::string_view& text)
{
    ListedFile file;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
        const std::size_t nameEnd = std::min(text.find_first_of("= \t\r\n></"), text.size());
        const std::string_view name = text.substr(0, nameEnd);
        if (nameEnd == text.size() || text[nameEnd] == '>' || text[nameEnd] == '<') {
            text.remove_prefix(nameEnd);
            return file;
        }
        text.remove_prefix(std::max<std::size_t>(
            nameEnd, text[nameEnd] == '/' || text[nameEnd] == '=' ? nameEnd + 1 : nameEnd));
        text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n="), text.size()));
        if (text.empty() || (text.front() != '"' && text.front() != '\''))
            continue;
        const std::size_t close = text.find(text.front(), 1);
        if (close == std::string_view::npos) {
            text = {};
            return {};
        }
        const std::string_view value = text.substr(1, close - 1);
        text.remove_prefix(close + 1);
        if (name == "name")
            file.name = Resolved(value);
        else if (name == "size")
            std::from_chars(value.data(), value.data() + value.size(), file.size);
    }
}

// FNV-1a over the category and the name, in 31 bits and never 0.
int IndexOf(std::string_view name, int category)
{
    std::uint32_t hash = (2166136261U ^ static_cast<std::uint32_t>(category)) * 16777619U;
    for (const char character : name)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    const auto index = static_cast<int>(hash & 0x7FFFFFFF);
    return index == 0 ? 1 : index;
}

void GiveIndices(std::vector<ListedFile>& files, int category)
{
    std::unordered_map<int, int> next;  // where to look for a free index, by the one that is taken
    std::unordered_set<int> taken;
    for (ListedFile& file : files) {
        const int wanted = IndexOf(file.name, category);
        int& candidate = next.try_emplace(wanted, wanted).first->second;
        while (!taken.insert(candidate).second)
            candidate = candidate == 0x7FFFFFFF ? 1 : candidate + 1;
        file.index = candidate;
    }
}

// The length of the UTF-8 character at the front of the text; 0 when there is none.
std::size_t CharacterLength(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > text.size())
        return 0;
    const auto isRest = [](char character) { return (static_cast<unsigned char>(character) & 0xC0) == 0x80; };
    return std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), isRest) ? length
                                                                                                     : 0;
}

// Whether the UTF-8 character turns the direction of writing, so that "gpj.exe" reads "exe.jpg".
bool TurnsDirection(std::string_view character)
{
    constexpr std::pair<std::string_view, std::string_view> kRanges[] = {
        {"\u200E", "\u200F"}, {"\u202A", "\u202E"}, {"\u2066", "\u2069"}};
    return std::ranges::any_of(kRanges, [character](const auto& range) {
        return character >= range.first && character <= range.second;
    });
}

// Cuts the text before the character that does not fit any more.
void CutTo(std::string& text, std::size_t most)
{
    if (text.size() <= most)
        return;
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0) == 0x80)
        --most;
    text.resize(most);
}

}  // namespace

std::vector<ListedFile> ReadFolderListing(std::string_view listing, int category)
{
    constexpr std::string_view kElement = "<file";
    std::vector<ListedFile> files;
    listing = listing.substr(0, kLongestListing);
    while (files.size() < kMostListedFiles) {
        const std::size_t found = listing.find(kElement);
        if (found == std::string_view::npos)
            break;
        listing.remove_prefix(found + kElement.size());
        if (listing.empty() || kBlanks.find(listing.front()) == std::string_view::npos)
            continue;
        ListedFile file = TakeAttributes(listing);
        if (!file.name.empty() && file.name.find('\0') == std::string::npos)
            files.push_back(std::move(file));
    }
    std::ranges::stable_sort(files, {}, &ListedFile::name);
    const auto isSame = [](const ListedFile& one, const ListedFile& other) { return one.name == other.name; };
    files.erase(std::unique(files.begin(), files.end(), isSame), files.end());
    GiveIndices(files, category);
    return files;
}

std::optional<std::uint64_t> ReadFreeSpace(std::string_view capability)
{
    constexpr std::string_view kElement = "<Free>";
    std::optional<std::uint64_t> most;
    for (std::size_t at = capability.find(kElement); at != std::string_view::npos;
         at = capability.find(kElement, at + 1)) {
        const std::size_t start = capability.find_first_not_of(kBlanks, at + kElement.size());
        const std::string_view number = capability.substr(std::min(start, capability.size()));
        std::uint64_t free = 0;
        if (std::from_chars(number.data(), number.data() + number.size(), free).ec == std::errc())
            most = std::max(most.value_or(0), free);
    }
    return most;
}

std::string LocalName(std::string_view handsetName)
{
    std::string name;
    for (std::size_t at = 0; at < handsetName.size();) {
        const std::size_t length = CharacterLength(handsetName.substr(at));
        const auto byte = static_cast<unsigned char>(handsetName[at]);
        const bool isPlain = length > 0 && byte >= 0x20 && byte != 0x7F && byte != '/' && byte != '\\' &&
                             !TurnsDirection(handsetName.substr(at, length));
        if (isPlain && !(name.empty() && byte == '.'))
            name += handsetName.substr(at, length);
        else
            name += '_';
        at += std::max<std::size_t>(length, 1);
    }
    const std::size_t dot = name.rfind('.');
    std::string extension =
        dot == std::string::npos || name.size() - dot > kLongestExtension ? "" : name.substr(dot);
    name.resize(name.size() - extension.size());
    CutTo(name, kLongestLocalName - extension.size());
    return name.empty() && extension.empty() ? "_" : name + extension;
}

}  // namespace suite
