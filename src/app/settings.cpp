// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"

#include "platform/services.h"
#include "platform/settings_store.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

namespace app
{

namespace
{

using platform::Os;

constexpr const char* kGeneral = "Setting";
constexpr const char* kFileId = "FileId";
constexpr const char* kProduct = "Product Info";
constexpr int kPorts = 255;

std::string PortFile(const std::string& programFolder)
{
    return fmt::format("{}/Port.ini", programFolder);
}

std::string GeneralFile(const std::string& programFolder)
{
    return fmt::format("{}/Kelvo.ini", programFolder);
}

// The number at the front of the text, which is cut to the fourteen characters that the file's form allows; a
// number beyond 32 bits stops at the largest.
int ToNumber(std::string text)
{
    constexpr std::size_t kMostCharacters = 14;
    text.resize(std::min(text.size(), kMostCharacters));
    const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
    const std::size_t digits = start + (start < text.size() && text[start] == '+' ? 1 : 0);
    std::int64_t number = 0;
    std::from_chars(text.data() + digits, text.data() + text.size(), number);
    return static_cast<int>(std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
}

int FileIdNumber(const char* key, const char* fallback, const std::string& file)
{
    return ToNumber(Os().profiles->GetPrivateProfileString(kFileId, key, fallback, file));
}

bool WriteNumber(const char* section, const char* key, int value, const std::string& file)
{
    return Os().profiles->WritePrivateProfileString(section, key, std::to_string(value), file);
}

}  // namespace

bool CSettings::Load(const std::string& file)
{
    if (file.empty()) {
        return false;
    }
    fileName = file;
    LoadGeneral();
    LoadFileIds();
    LoadProductInfo();
    return true;
}

void CSettings::LoadGeneral()
{
    const auto number = [this](const char* key, int fallback) {
        return Os().profiles->GetPrivateProfileInt(kGeneral, key, fallback, fileName);
    };
    delDscPhoto = number("DelDscPhoto", 2);
    sort = number("Sort", 0);
    thumbType = number("ThumbType", 0);
    jpegQuality = number("JpegQuality", 85);
    skinPos = number("SkinPos", 1) != 0;
}

void CSettings::LoadFileIds()
{
    useId = FileIdNumber("UseID", "0", fileName) != 0;
    if (!useId) {
        return;
    }
    imgItemId = FileIdNumber("ImgItemID", "0", fileName);
    aviItemId = FileIdNumber("AviItemID", "0", fileName);
    imgRcdId = FileIdNumber("ImgRcdID", "0", fileName);
    aviRcdId = FileIdNumber("AviRcdID", "0", fileName);
    itemIdMax = FileIdNumber("ItemIDMax", "99999", fileName);
}

void CSettings::LoadProductInfo()
{
    platform::CUtility& utility = *Os().utility;
    for (std::size_t i = 0; i < productLinks.size(); ++i) {
        ProductLink& link = productLinks[i];
        utility.ql_GetSettingString(kProduct, fmt::format("url_{}", i + 1), fileName, link.url);
        utility.ql_GetSettingString(kProduct, fmt::format("link_{}", i + 1), fileName, link.link);
        utility.ql_GetSettingRect(kProduct, fmt::format("rect_{}", i + 1), fileName, link.rect);
    }
    utility.ql_GetSettingString(kProduct, "ProductName", fileName, productName);
    utility.ql_GetSettingString(kProduct, "VersionInfo", fileName, versionInfo);
}

bool CSettings::Save() const
{
    if (fileName.empty()) {
        return false;
    }
    WriteNumber(kGeneral, "Sort", sort, fileName);
    WriteNumber(kGeneral, "DelDscPhoto", delDscPhoto, fileName);
    WriteNumber(kGeneral, "ThumbType", thumbType, fileName);
    WriteNumber(kGeneral, "SkinPos", skinPos ? 1 : 0, fileName);
    if (useId) {
        WriteNumber(kFileId, "ImgItemID", imgItemId, fileName);
        WriteNumber(kFileId, "AviItemID", aviItemId, fileName);
        WriteNumber(kFileId, "ImgRcdID", imgRcdId, fileName);
        WriteNumber(kFileId, "AviRcdID", aviRcdId, fileName);
    }
    return true;
}

CSettings*& CurrentSettings()
{
    static CSettings* settings = nullptr;
    return settings;
}

OptionValues LoadOptions(const std::string& programFolder)
{
    OptionValues values;
    Os().utility->ql_GetSettingInt(kGeneral, "DelDscPhoto", GeneralFile(programFolder), values.delDscPhoto);
    const int port = HandsetPort(programFolder);
    values.portPosition = port >= 1 && port <= kPorts ? port - 1 : -1;
    return values;
}

bool SaveOptions(const std::string& programFolder, const OptionValues& values)
{
    const bool general = WriteNumber(kGeneral, "DelDscPhoto", values.delDscPhoto, GeneralFile(programFolder));
    const int port = values.portPosition + 1;
    const bool written = WriteNumber("Port", "com", port, PortFile(programFolder));
    return general && written && HandsetPort(programFolder) == port;
}

std::vector<std::string> PortNames()
{
    std::vector<std::string> names;
    for (int port = 1; port <= kPorts; ++port) {
        names.push_back(fmt::format("COM {}", port));
    }
    return names;
}

int HandsetPort(const std::string& programFolder)
{
    return Os().profiles->GetPrivateProfileInt("Port", "com", 0, PortFile(programFolder));
}

std::array<SystemColour, 5> PropertyDialogColours(const std::string& skinFolder)
{
    const std::string file = fmt::format("{}/config.ini", skinFolder);
    // Read in this order, handed over in the order of the positions.
    static constexpr std::array<std::pair<const char*, std::size_t>, 5> kKeys{
        {{"3DFace", 0}, {"3DDKShadow", 2}, {"3DLight", 4}, {"3DShadow", 1}, {"3DHighLight", 3}}};
    std::array<SystemColour, 5> colours{{{15}, {16}, {21}, {20}, {22}}};
    for (const auto& [key, position] : kKeys) {
        SystemColour& entry = colours[position];
        entry.set = Os().utility->ql_GetSettingColor("PropertyDlg", key, file, entry.colour);
    }
    return colours;
}

}  // namespace app
