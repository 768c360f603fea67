// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_registry.h"

#include "platform_linux/failure.h"
#include "platform_linux/paths.h"

#include <string_view>

namespace platform_linux
{

namespace
{

// A byte as "%" and two hex digits.
void AppendEscape(std::string& text, char c)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    text += '%';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
}

// `text` with "%", control characters, those of `special` and blanks at either end escaped.
std::string Escape(std::string_view text, std::string_view special)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool isControl = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        const bool isOuterBlank = c == ' ' && (i == 0 || i + 1 == text.size());
        if (isControl || isOuterBlank || c == '%' || special.find(c) != std::string_view::npos)
            AppendEscape(result, c);
        else
            result += c;
    }
    return result;
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

// Takes back Escape; a "%" without two hex digits stands for itself.
std::string Unescape(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
        if (low >= 0) {
            result += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

// The key without outer and doubled separators, as a section name; empty for no key.
std::string SectionOf(const std::string& key)
{
    std::string levels;
    for (const char c : key)
        if (c != '/' || (!levels.empty() && levels.back() != '/'))
            levels += c;
    if (levels.ends_with('/'))
        levels.pop_back();
    return Escape(levels, "[]");
}

// The unnamed value of a key is written as "@".
std::string LineNameOf(const std::string& name)
{
    return name.empty() ? "@" : Escape(name, name == "@" ? "@" : "[=;");
}

}  // namespace

bool CLinuxRegistry::KeyExists(const std::string& key)
{
    const std::string section = SectionOf(key);
    const std::shared_ptr<const CIniText> text = section.empty() ? nullptr : files.Read(file);
    return text && (text->HasSection(section) || text->HasSectionBelow(section + '/'));
}

std::optional<std::string> CLinuxRegistry::QueryValue(const std::string& key, const std::string& name)
{
    const std::shared_ptr<const CIniText> text = files.Read(file);
    const std::optional<std::string> value =
        text ? text->Value(SectionOf(key), LineNameOf(name)) : std::nullopt;
    return value ? std::optional<std::string>(Unescape(*value)) : std::nullopt;
}

bool CLinuxRegistry::Change(const std::function<bool(CIniText&)>& change)
{
    return !file.empty() && MakeFolders(ParentOf(file)) && files.Change(file, change);
}

bool CLinuxRegistry::CreateKey(const std::string& key)
{
    const std::string section = SectionOf(key);
    return !section.empty() &&
           (KeyExists(key) || Change([&](CIniText& text) { return text.AddSection(section); }));
}

bool CLinuxRegistry::SetValue(const std::string& key, const std::string& name, const std::string& value)
{
    const std::string section = SectionOf(key);
    return !section.empty() &&
           Change([&](CIniText& text) { return text.Set(section, LineNameOf(name), Escape(value, "")); });
}

bool CLinuxRegistry::DeleteValue(const std::string& key, const std::string& name)
{
    if (!QueryValue(key, name))
        return false;
    return Change([&](CIniText& text) {
        text.Remove(SectionOf(key), LineNameOf(name));
        return true;
    });
}

}  // namespace platform_linux
