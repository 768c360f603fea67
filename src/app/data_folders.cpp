// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_folders.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace app
{

namespace
{

using platform::Os;

// The levels between the user's own folders and those of this program.
constexpr std::string_view kBranch = "Halden/Tessa1.0";
constexpr std::string_view kSample = "Sample";

// The user's folder of that kind with this program's two levels made in it; empty when there is none.
std::string MakeDataRoot(platform::KnownFolder kind)
{
    auto base = Os().shell->GetFolderPath(kind, true);
    if (!base) {
        const auto windows = Os().shell->GetFolderPath(platform::KnownFolder::windows, true);
        if (!windows) {
            return {};
        }
        base = browser::JoinPath(*windows, "Application Data");
        Os().files->CreateDirectory(*base);
    }
    Os().files->CreateDirectory(browser::JoinPath(*base, "Halden"));
    std::string root = browser::JoinPath(*base, kBranch);
    Os().files->CreateDirectory(root);
    return root;
}

std::string FolderOfProgramFile()
{
    return std::string(browser::FolderOf(Os().utility->ql_GetFileName())).append("/");
}

}  // namespace

std::string ProgramVersionText()
{
    platform::FileVersion version;
    if (!Os().utility->ql_GetFileVersion(version)) {
        return {};
    }
    return fmt::format("{}.{:02}.{:04}.{:02}", version.major, version.minor, version.build, version.revision);
}

void CDataFolders::Prepare()
{
    versionText = ProgramVersionText();
    registryKey = "Software/Qorvel/Mobile/" + versionText;
    if (!ReadFolderValues()) {
        WriteDefaultFolderValues();
        ReadFolderValues();
    }
    CreateTree();
    FindProblems();
}

bool CDataFolders::ReadFolderValues()
{
    if (!Os().registry->KeyExists(registryKey)) {
        return false;
    }
    const std::array<std::pair<const char*, std::string*>, 6> values{{
        {"DB", &thumbDbFolder},
        {"Temp", &tempRoot},
        {"MobileDownload", &mobileDownloadRoot},
        {"FavoriteTree", &favouriteRoot},
        {"Outbox", &outboxFolder},
        {"SearchFolder", &searchFolder},
    }};
    bool complete = true;
    for (const auto& [name, folder] : values) {
        folder->clear();
        const auto recorded = Os().registry->QueryValue(registryKey, name);
        if (!recorded) {
            complete = false;
        } else if (!EnsureFolder(*recorded)) {
            Os().registry->DeleteValue(registryKey, name);
            complete = false;
        } else {
            *folder = *recorded;
        }
    }
    for (std::string* root : {&tempRoot, &mobileDownloadRoot, &favouriteRoot}) {
        if (!root->empty()) {
            *root += '/';
        }
    }
    return complete;
}

void CDataFolders::WriteDefaultFolderValues()
{
    if (!Os().registry->CreateKey(registryKey)) {
        return;
    }
    const std::string local = MakeDataRoot(platform::KnownFolder::localAppData);
    const std::string documents = MakeDataRoot(platform::KnownFolder::documents);
    const auto write = [this](const char* name, const std::string& value) {
        if (!Os().registry->QueryValue(registryKey, name)) {
            Os().registry->SetValue(registryKey, name, value);
        }
    };
    const auto writeFolder = [&write](const char* name, const std::string& root, const char* folder) {
        if (!root.empty()) {
            write(name, browser::JoinPath(root, folder));
        }
    };
    writeFolder("DB", local, "ThumbDB");
    writeFolder("Temp", local, "_temp_");
    writeFolder("MobileDownload", documents, "MobileDownload");
    writeFolder("FavoriteTree", documents, "My Favorite");
    writeFolder("Outbox", local, "Outbox");
    writeFolder("SearchFolder", local, "Search Result");
    write("Path", FolderOfProgramFile());
}

void CDataFolders::CreateTree()
{
    using enum DataFolderKind;
    const auto create = [this](DataFolderKind kind) {
        const std::string path = FolderPath(kind);
        return !path.empty() && Os().files->CreateDirectory(path.substr(0, path.size() - 1));
    };
    for (const DataFolderKind kind : {photo, ring, animation, ring, frame}) {
        create(kind);
    }
    static constexpr std::array<std::pair<DataFolderKind, const char*>, 3> kSamples{
        {{photo, "Photo"}, {ring, "Ring"}, {frame, "Frame"}}};
    for (const auto& [kind, name] : kSamples) {
        const auto sampleKind = static_cast<DataFolderKind>(static_cast<int>(kind) + 1);
        if (create(sampleKind)) {
            CopySampleFolder(kind, name);
        }
    }
    for (const DataFolderKind kind : {tempDdr, tempCompose, tempUpload, tempDownload}) {
        create(kind);
    }
}

void CDataFolders::CopySampleFolder(DataFolderKind kind, const std::string& name)
{
    platform::FileOperationRequest request;
    request.operation = platform::FileOperation::copy;
    request.sources = {fmt::format("{}/My Favorite/{}/{}", Os().utility->ql_GetModulePath(), name, kSample)};
    request.target = FolderPath(kind);
    request.target.pop_back();
    request.filesOnly = true;
    Os().shell->SHFileOperation(request);
}

void CDataFolders::FindProblems()
{
    const std::array<std::pair<const std::string*, const char*>, 4> needed{{
        {&thumbDbFolder, "There is no folder for thumbnails: they are made anew at each visit."},
        {&favouriteRoot, "There is no folder for favourites."},
        {&tempRoot, "There is no folder for work in progress."},
        {&mobileDownloadRoot, "There is no folder for files from the handset."},
    }};
    problems.clear();
    for (const auto& [folder, problem] : needed) {
        if (folder->empty()) {
            problems.emplace_back(problem);
        }
    }
}

std::string CDataFolders::JournalFolder() const
{
    return thumbDbFolder.empty() ? std::string()
                                 : browser::JoinPath(browser::FolderOf(thumbDbFolder), "Journal");
}

bool CDataFolders::GetFolderPath(int kind, std::string& path) const
{
    struct Place {
        const std::string* base;
        const char* appended;
    };
    const std::array<Place, 14> places{{
        {&mobileDownloadRoot, ""},
        {&favouriteRoot, ""},
        {&favouriteRoot, "Photo/"},
        {&favouriteRoot, "Photo/Sample/"},
        {&favouriteRoot, "Ring/"},
        {&favouriteRoot, "Ring/Sample/"},
        {&favouriteRoot, "Frame/"},
        {&favouriteRoot, "Frame/Sample/"},
        {&favouriteRoot, "Animation/"},
        {&tempRoot, ""},
        {&tempRoot, "temp_DDR/"},
        {&tempRoot, "temp_Compose/"},
        {&tempRoot, "temp_Upload/"},
        {&tempRoot, "temp_Download/"},
    }};
    if (kind >= 0 && kind < static_cast<int>(places.size())) {
        const Place& place = places[static_cast<std::size_t>(kind)];
        path = place.base->empty() ? std::string{} : *place.base + place.appended;
    }
    return true;
}

std::string CDataFolders::FolderPath(DataFolderKind kind) const
{
    std::string path;
    GetFolderPath(static_cast<int>(kind), path);
    return path;
}

bool CDataFolders::ListAlbums(const std::string& folder)
{
    const auto reader = folder.empty() ? nullptr : Os().files->ReadFolder(folder);
    if (!reader) {
        return false;
    }
    std::vector<platform::FolderEntry> entries;
    while (reader->Read(1000, entries)) {
    }
    std::vector<std::string> names;
    for (platform::FolderEntry& entry : entries) {
        if (entry.isFolder && entry.name != kSample) {
            names.push_back(std::move(entry.name));
        }
    }
    if (names.empty()) {
        return false;
    }
    std::ranges::sort(names, browser::NameBefore);
    albumNames = std::move(names);
    return true;
}

int CDataFolders::CountAlbums(DataFolderKind kind)
{
    return ListAlbums(FolderPath(kind)) ? static_cast<int>(albumNames.size()) : -1;
}

bool CDataFolders::EnsureFolder(const std::string& path)
{
    if (path.empty()) {
        return false;
    }
    const auto isFolder = [&path] {
        const auto facts = Os().files->FindFirstFile(path);
        return facts ? std::optional(facts->isFolder) : std::nullopt;
    };
    if (const auto found = isFolder()) {
        return *found;
    }
    // Another process that starts at this moment may have made it first.
    return Os().files->CreateDirectory(path) || isFolder().value_or(false);
}

void CDataFolders::EnsurePath(const std::string& path)
{
    for (std::size_t end = path.find('/', 1); !path.empty(); end = path.find('/', end + 1)) {
        const std::string prefix = path.substr(0, end);
        if (!Os().files->FindFirstFile(prefix)) {
            Os().files->CreateDirectory(prefix);
        }
        if (end == std::string::npos) {
            break;
        }
    }
}

}  // namespace app
