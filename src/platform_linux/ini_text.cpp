// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/ini_text.h"

#include <algorithm>

namespace platform_linux
{

namespace
{

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLineBreakers("\n\r\0", 3);

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// FNV-1a over the lower-case letters.
std::uint64_t Hash(std::string_view name, std::uint64_t hash = 0xCBF29CE484222325)
{
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(Lower(c))) * 0x100000001B3;
    return hash;
}

std::uint64_t Hash(std::uint64_t sectionHash, std::string_view key)
{
    return Hash(key, Hash("\n", sectionHash));
}

bool StandsInLine(std::string_view text)
{
    return text.find_first_of(kLineBreakers) == std::string_view::npos &&
           (text.empty() || (kBlanks.find(text.front()) == std::string_view::npos &&
                             kBlanks.find(text.back()) == std::string_view::npos));
}

bool IsSectionName(std::string_view name)
{
    return StandsInLine(name);
}

bool IsKeyName(std::string_view name)
{
    return StandsInLine(name) && !name.empty() && name.front() != ';' && name.front() != '[' &&
           name.find('=') == std::string_view::npos;
}

template <class T> void OrderByHash(std::vector<T>& all)
{
    std::stable_sort(all.begin(), all.end(), [](const T& a, const T& b) { return a.hash < b.hash; });
}

// The first of those with `hash` that `isIt` takes.
template <class T, class Test> const T* Find(const std::vector<T>& all, std::uint64_t hash, Test isIt)
{
    auto at = std::lower_bound(all.begin(), all.end(), hash,
                               [](const T& entry, std::uint64_t wanted) { return entry.hash < wanted; });
    for (; at != all.end() && at->hash == hash; ++at)
        if (isIt(*at))
            return &*at;
    return nullptr;
}

}  // namespace

bool SameName(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return Lower(a) == Lower(b); });
}

bool CIniText::IsUsable(std::string_view bytes)
{
    return bytes.size() <= kMostBytes && !bytes.starts_with("\xFF\xFE") && !bytes.starts_with("\xFE\xFF");
}

CIniText::CIniText(std::string bytes) : text(std::move(bytes))
{
    Parse();
}

std::string_view CIniText::At(Span span) const
{
    return std::string_view(text).substr(span.begin, span.end - span.begin);
}

CIniText::Span CIniText::Trimmed(Span span) const
{
    while (span.begin < span.end && kBlanks.find(text[span.begin]) != std::string_view::npos)
        ++span.begin;
    while (span.begin < span.end && kBlanks.find(text[span.end - 1]) != std::string_view::npos)
        --span.end;
    return span;
}

void CIniText::Parse()
{
    sections.clear();
    entries.clear();
    const std::size_t firstEnd = text.find('\n');
    lineEnd = firstEnd != std::string::npos && firstEnd > 0 && text[firstEnd - 1] == '\r' ? "\r\n" : "\n";
    const auto size = static_cast<std::uint32_t>(text.size());
    std::uint32_t begin = text.starts_with(kUtf8Mark) ? 3 : 0;
    while (begin < size) {
        const std::size_t newline = text.find('\n', begin);
        std::uint32_t end = newline == std::string::npos ? size : static_cast<std::uint32_t>(newline);
        const std::uint32_t next = newline == std::string::npos ? size : end + 1;
        if (end > begin && text[end - 1] == '\r')
            --end;
        ParseLine(Trimmed({begin, end}), next);
        begin = next;
    }
    OrderByHash(sections);
    OrderByHash(entries);
}

void CIniText::ParseLine(Span line, std::uint32_t next)
{
    const std::string_view content = At(line);
    if (content.empty())
        return;
    if (content.front() == '[') {
        const std::size_t close = content.rfind(']');
        const auto length =
            static_cast<std::uint32_t>(close == std::string_view::npos ? content.size() : close);
        const Span name = Trimmed({line.begin + 1, line.begin + length});
        sections.push_back({Hash(At(name)), name, next});
        return;
    }
    if (sections.empty())
        return;
    sections.back().insertAt = next;
    const std::size_t equals = content.find('=');
    if (content.front() == ';' || equals == std::string_view::npos)
        return;
    const std::uint32_t middle = line.begin + static_cast<std::uint32_t>(equals);
    const Span key = Trimmed({line.begin, middle});
    entries.push_back(
        {Hash(sections.back().hash, At(key)), sections.back().name, key, Trimmed({middle + 1, line.end})});
}

const CIniText::Section* CIniText::FindSection(std::string_view section) const
{
    return Find(sections, Hash(section), [&](const Section& s) { return SameName(At(s.name), section); });
}

const CIniText::Entry* CIniText::FindEntry(std::string_view section, std::string_view key) const
{
    return Find(entries, Hash(Hash(section), key), [&](const Entry& entry) {
        return SameName(At(entry.section), section) && SameName(At(entry.key), key);
    });
}

std::optional<std::string> CIniText::Value(std::string_view section, std::string_view key) const
{
    const Entry* entry = FindEntry(section, key);
    return entry ? std::optional<std::string>(At(entry->value)) : std::nullopt;
}

bool CIniText::HasSectionBelow(std::string_view prefix) const
{
    return std::any_of(sections.begin(), sections.end(), [&](const Section& section) {
        return SameName(At(section.name).substr(0, prefix.size()), prefix);
    });
}

bool CIniText::Replace(std::size_t at, std::size_t length, const std::string& bytes)
{
    if (text.size() - length + bytes.size() > kMostBytes)
        return false;
    text.replace(at, length, bytes);
    Parse();
    return true;
}

bool CIniText::Insert(std::size_t at, const std::string& line)
{
    const bool isStart = at == 0 || (at == kUtf8Mark.size() && text.starts_with(kUtf8Mark));
    const bool needsBreak = !isStart && text[at - 1] != '\n';
    return Replace(at, 0, std::string(needsBreak ? lineEnd : "") + line + std::string(lineEnd));
}

bool CIniText::Set(std::string_view section, std::string_view key, std::string_view value)
{
    if (!IsSectionName(section) || !IsKeyName(key) || !StandsInLine(value))
        return false;
    if (const Entry* entry = FindEntry(section, key))
        return Replace(entry->value.begin, entry->value.end - entry->value.begin, std::string(value));
    const std::string line = std::string(key) + '=' + std::string(value);
    if (const Section* found = FindSection(section))
        return Insert(found->insertAt, line);
    const std::string before = text;
    if (AddSection(section) && Insert(text.size(), line))
        return true;
    text = before;
    Parse();
    return false;
}

bool CIniText::AddSection(std::string_view section)
{
    if (!IsSectionName(section))
        return false;
    if (HasSection(section))
        return true;
    std::string line = '[' + std::string(section) + ']';
    if (!text.empty() && text != kUtf8Mark)
        line.insert(0, lineEnd);
    return Insert(text.size(), line);
}

void CIniText::Remove(std::string_view section, std::string_view key)
{
    const Entry* entry = FindEntry(section, key);
    if (!entry)
        return;
    std::string kept;
    std::size_t done = 0;
    const std::uint64_t hash = entry->hash;
    for (; entry != entries.data() + entries.size() && entry->hash == hash; ++entry) {
        if (!SameName(At(entry->section), section) || !SameName(At(entry->key), key))
            continue;
        const std::size_t before = text.rfind('\n', entry->key.begin);
        const std::size_t behind = text.find('\n', entry->value.end);
        kept.append(text, done, before == std::string::npos ? 0 : before + 1 - done);
        done = behind == std::string::npos ? text.size() : behind + 1;
    }
    kept.append(text, done);
    text = std::move(kept);
    Parse();
}

}  // namespace platform_linux
