// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/kelvo_app.h"

#include "app/data_folders.h"
#include "app/skin_layout.h"
#include "app/string_table.h"
#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>

namespace app
{

namespace
{

using platform::Os;

constexpr const char* kCompany = "Qorvel";
constexpr const char* kTitle = "Vellum";
// The key that the application object reads; it does not follow the program's version.
constexpr const char* kFixedVersion = "1.00.0000.01";
constexpr const char* kLauncherClass = "QorvelMobile";
constexpr const char* kLauncherProgram = "Hubdeck.exe";
constexpr std::size_t kLongestCaption = 260;

}  // namespace

StartResult CKelvoApp::InitInstance(const std::string& commandLine)
{
    ParseCommandLine(commandLine);
    // However the program was started, it counts as launched by the suite.
    launchedBySuite = true;
    ReadConfiguration();
    title = kTitle;
    windowClass = kCompany + title;
    if (Os().messages->FindWindow(windowClass)) {
        return StartResult::secondInstance;
    }
    if (!Os().messages->RegisterClass(windowClass)) {
        if (Os().messages->FindWindow(windowClass)) {
            return StartResult::secondInstance;
        }
        message = "Class Registration Failed";
        return StartResult::failed;
    }
    Strings().LoadResourceLibrary(fmt::format("{}/qrxKelvo.dll", programFolder));
    ReadFonts();
    StampRegistry();
    return StartResult::run;
}

// A word begins with "/" and ends before the character that stands before the next "/".
void CKelvoApp::ParseCommandLine(const std::string& commandLine)
{
    const std::string text = browser::LowerCase(commandLine);
    for (std::size_t begin = text.find('/'); begin != std::string::npos;) {
        const std::size_t next = text.find('/', begin + 1);
        const std::size_t end = next == std::string::npos ? text.size() : std::max(begin + 1, next - 1);
        const std::string word = text.substr(begin, end - begin);
        if (word.find("load") != std::string::npos) {
            launchedBySuite = true;
        } else if (word.find("pnplaunch") != std::string::npos) {
            pnpDrive = word.back() == ':' ? std::string{} : std::string(1, word.back());
            launchedBySuite = true;
        }
        begin = next;
    }
}

void CKelvoApp::ReadConfiguration()
{
    programFolder = Os().utility->ql_GetModulePath();
    skinFolder = fmt::format("{}/skin/default/", programFolder);
    versionFile = fmt::format("{}/Snapwell.reg", programFolder);
    versionText = ProgramVersionText();
    if (!versionText.empty() &&
        Os().profiles->GetPrivateProfileString("Manager", "ver", "", versionFile) != versionText) {
        Os().profiles->WritePrivateProfileString("Manager", "ver", versionText, versionFile);
    }
    if (const auto common = Os().shell->GetFolderPath(platform::KnownFolder::commonAppData, true)) {
        commonDataFolder = *common;
    } else if (const auto windows = Os().shell->GetFolderPath(platform::KnownFolder::windows, true)) {
        commonDataFolder = browser::JoinPath(*windows, "Application Data");
        Os().files->CreateDirectory(commonDataFolder);
    }
    const std::string key = fmt::format("Software/{}/{}/{}", kCompany, "Mobile", kFixedVersion);
    dbFolder = RecordedFolder(key, "DB");
    favouriteTree = RecordedFolder(key, "FavoriteTree");
    outboxFolder = RecordedFolder(key, "Outbox");
    searchFolder = RecordedFolder(key, "SearchFolder");
    mobileDownloadFolder = RecordedFolder(key, "MobileDownload");
}

std::string CKelvoApp::RecordedFolder(const std::string& key, const std::string& name) const
{
    const auto folder = Os().registry->QueryValue(key, name);
    if (!folder) {
        return {};
    }
    CDataFolders::EnsurePath(*folder);
    return *folder;
}

void CKelvoApp::ReadFonts() const
{
    ReadSkinFont(skinFolder);
}

void CKelvoApp::StampRegistry() const
{
    const std::string key = fmt::format("Software/{}/{}", kCompany, kTitle);
    const std::string versionKey = fmt::format("{}/{}", key, versionText);
    if (Os().registry->QueryValue(key, "CurVer") != versionText) {
        Os().registry->SetValue(key, "CurVer", versionText);
    }
    if (Os().registry->QueryValue(versionKey, "Path") != programFolder) {
        Os().registry->SetValue(versionKey, "Path", programFolder);
    }
}

std::string CKelvoApp::Caption() const
{
    std::string caption = Os().profiles->GetPrivateProfileString("Manager", "caption", "", versionFile);
    caption.resize(std::min(caption.size(), kLongestCaption));
    return caption;
}

void CKelvoApp::ExitInstance()
{
    if (exitMode != 1 && exitMode != 2) {
        ShowLauncher();
    }
}

bool CKelvoApp::ShowLauncher() const
{
    return Os().messages->BringToForeground(kLauncherClass) ||
           Os().shell->WinExec(fmt::format("\"{}\"", browser::JoinPath(programFolder, kLauncherProgram)));
}

}  // namespace app
