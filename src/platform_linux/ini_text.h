// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIniText: the text of an INI file that is changed without touching anything else in it.
//
// Bytes are kept as they are, whatever their encoding; names are compared without regard to the case of ASCII
// letters. The line end of the file's first line ("\n" or "\r\n") is used for new lines. Where a name occurs
// twice the first one counts. The rules in full: docs/formats/registry.md.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform_linux
{

class CIniText
{
public:
    // Larger texts are not for this class.
    static constexpr std::uint64_t kMostBytes = 4 << 20;

    // Whether the bytes can be taken as an INI text: not too long and not UTF-16.
    static bool IsUsable(std::string_view bytes);

    // `bytes` must be usable.
    explicit CIniText(std::string bytes);

    const std::string& Text() const { return text; }
    // The value as it stands in the file, without the blanks around it.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    bool HasSection(std::string_view section) const { return FindSection(section) != nullptr; }
    // Whether there is a section whose name begins with `prefix`.
    bool HasSectionBelow(std::string_view prefix) const;

    // False, with nothing changed, when the names or the value cannot stand in a line, or the text would get
    // too long.
    bool Set(std::string_view section, std::string_view key, std::string_view value);
    bool AddSection(std::string_view section);
    // Removes every line of that key.
    void Remove(std::string_view section, std::string_view key);

private:
    struct Span {
        std::uint32_t begin = 0;
        std::uint32_t end = 0;
    };
    struct Section {
        std::uint64_t hash = 0;
        Span name;
        std::uint32_t insertAt = 0;  // behind its last line that is not blank
    };
    struct Entry {
        std::uint64_t hash = 0;  // of section and key
        Span section;
        Span key;
        Span value;
    };

    std::string_view At(Span span) const;
    Span Trimmed(Span span) const;
    void Parse();
    void ParseLine(Span line, std::uint32_t next);
    const Section* FindSection(std::string_view section) const;
    const Entry* FindEntry(std::string_view section, std::string_view key) const;
    bool Replace(std::size_t at, std::size_t length, const std::string& bytes);
    // `line` as a line of its own at `at`.
    bool Insert(std::size_t at, const std::string& line);

    std::string text;
    std::string_view lineEnd = "\n";
    // Both ordered by hash, then by place in the text.
    std::vector<Section> sections;
    std::vector<Entry> entries;
};

// Equal but for the case of ASCII letters.
bool SameName(std::string_view left, std::string_view right);

}  // namespace platform_linux
