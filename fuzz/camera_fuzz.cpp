// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a device description and, after a zero byte, the names of a card, a line each ("DCIM/a.jpg",
// or with a slash at the end for a folder): what is listed lies on the card, is of the kinds that the
// description names, is in order and no more than asked for.
#include "platform/settings_store.h"
#include "platform_linux/ini_text.h"
#include "suite/camera/store_list.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "support/test_file_system.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace
{

namespace fs = std::filesystem;

constexpr int kMostNames = 24;

class CGivenProfiles : public platform::CProfiles
{
public:
    explicit CGivenProfiles(std::string_view bytes) : text(std::string(bytes)) {}
    int GetPrivateProfileInt(const std::string&, const std::string&, int fallback,
                             const std::string&) override
    {
        return fallback;
    }
    std::string GetPrivateProfileString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string&) override
    {
        return text.Value(section, key).value_or(fallback);
    }
    bool HasPrivateProfileKey(const std::string&, const std::string&, const std::string&) override
    {
        return false;
    }
    bool WritePrivateProfileString(const std::string&, const std::string&, const std::string&,
                                   const std::string&) override
    {
        std::abort();
    }
    int GetLastError() override { return 0; }

private:
    platform_linux::CIniText text;
};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// What cannot be a name on this file system is left out.
void MakeCard(const fs::path& root, const std::string& names)
{
    std::istringstream lines(names);
    std::string line;
    for (int i = 0; i < kMostNames && std::getline(lines, line); ++i) {
        std::error_code ignored;
        const fs::path path = (root / fs::path(line).relative_path()).lexically_normal();
        if (!path.string().starts_with(root.string() + '/'))
            continue;
        fs::create_directories(line.ends_with('/') ? path : path.parent_path(), ignored);
        if (!line.ends_with('/') && !fs::exists(path, ignored))
            std::ofstream(path).put('.');
    }
}

void CheckKind(const std::vector<suite::StoredFile>& files, const std::vector<std::string>& extensions,
               const std::string& root)
{
    for (const suite::StoredFile& file : files) {
        const fs::path path = file.path;
        const std::string extension = suite::LowerCase(path.extension().string());
        Require(file.path.starts_with(root + '/') && fs::is_regular_file(fs::symlink_status(path)));
        Require(!extension.empty() && path.filename().string().front() != '.');
        Require(std::ranges::find(extensions, extension.substr(1)) != extensions.end());
        Require(file.size == fs::file_size(path) && suite::IsUnchanged(file));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string_view description = bytes.substr(0, bytes.find('\0'));
    if (!platform_linux::CIniText::IsUsable(description))
        return 0;
    support::CTestFileSystem files;
    const support::CServicesGuard guard(files);
    CGivenProfiles profiles(description);
    platform::Os().profiles = &profiles;
    const support::CTempFolder card;
    setenv("KELVO_CAMERA_ROOT", card.Path().c_str(), 1);
    MakeCard(card.Path(), std::string(bytes.substr(std::min(description.size() + 1, size))));

    const suite::DeviceRules rules = suite::ReadDeviceFile("Dev.ini");
    const suite::StoreList all = suite::ListStore(card.Path(), rules);
    const suite::StoreList some = suite::ListStore(card.Path(), rules, {2, 100});

    Require(rules.root == card.Path());
    CheckKind(all.photos, rules.photos, card.Path());
    CheckKind(all.clips, rules.clips, card.Path());
    Require(some.photos.size() + some.clips.size() ==
            std::min<std::size_t>(2, all.photos.size() + all.clips.size()));
    Require(some.isCut == (all.photos.size() + all.clips.size() > 2));
    return 0;
}
