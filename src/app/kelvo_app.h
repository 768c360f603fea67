// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CKelvoApp: start-up and end of the program, apart from its window.
//
// The order of a start: CDataFolders::Prepare, CKelvoApp::InitInstance, the window, ExitInstance. A program
// without a window calls ReadConfiguration in place of InitInstance.
#pragma once

#include <functional>
#include <string>

namespace app
{

enum class StartResult {
    run,
    secondInstance,  // another instance runs; it has been told to come forward where told so
    failed,          // message() says what to show
};

class CKelvoApp
{
public:
    // `commandLine` is the text behind the program's name. Everything up to the window; then the window is
    // made and shown by the caller.
    StartResult InitInstance(const std::string& commandLine);
    // Hands back to the suite's launcher unless ExitMode is 1 or 2.
    void ExitInstance();
    // Brings the suite's launcher forward, or starts it; false when there is none.
    bool ShowLauncher() const;
    // The program's places and the folders recorded in the registry.
    void ReadConfiguration();
    // Takes /load and /pnplaunch out of the command line.
    void ParseCommandLine(const std::string& commandLine);

    const std::string& ProgramFolder() const { return programFolder; }
    const std::string& SkinFolder() const { return skinFolder; }
    const std::string& VersionText() const { return versionText; }
    const std::string& DbFolder() const { return dbFolder; }
    const std::string& FavouriteTree() const { return favouriteTree; }
    const std::string& OutboxFolder() const { return outboxFolder; }
    const std::string& SearchFolder() const { return searchFolder; }
    const std::string& MobileDownloadFolder() const { return mobileDownloadFolder; }
    const std::string& CommonDataFolder() const { return commonDataFolder; }
    bool LaunchedBySuite() const { return launchedBySuite; }
    const std::string& PnpDrive() const { return pnpDrive; }
    const std::string& WindowClass() const { return windowClass; }
    const std::string& Title() const { return title; }
    // The text for the main window's title bar, from the program's version file; may be empty.
    std::string Caption() const;
    // What went wrong when InitInstance answered StartResult::failed.
    const std::string& Message() const { return message; }

    int exitMode = 0;

private:
    void ReadFonts() const;
    void StampRegistry() const;
    std::string RecordedFolder(const std::string& key, const std::string& name) const;

    std::string programFolder;
    std::string skinFolder;
    std::string versionFile;
    std::string versionText;
    std::string commonDataFolder;
    std::string dbFolder;
    std::string favouriteTree;
    std::string outboxFolder;
    std::string searchFolder;
    std::string mobileDownloadFolder;
    bool launchedBySuite = false;
    std::string pnpDrive;
    std::string windowClass;
    std::string title;
    std::string message;
};

}  // namespace app
