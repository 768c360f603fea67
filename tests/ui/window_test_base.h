// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real window over a temporary user: what the window tests share.
#pragma once

#include "support/test_services.h"
#include "ui/main_frame.h"
#include "ui/theme.h"

#include <QTest>

#include <gtest/gtest.h>

namespace support
{

// Notes what was to be opened.
class CNotingShell : public CTestShell
{
public:
    std::vector<std::string> opened;
    bool ShellExecute(const std::string& path) override
    {
        opened.push_back(path);
        return true;
    }
};

// Folders that cannot be read, and folders that have no end.
class COddFolders : public CTestFileSystem
{
public:
    std::string forbidden;
    std::string endless;
    std::unique_ptr<platform::CFolderReader> ReadFolder(const std::string& path) override;
};

class WindowTest : public testing::Test
{
protected:
    WindowTest();
    ~WindowTest() override;

    // The path of an empty file (or a picture) in the folder that the tests look at.
    std::string Add(const std::string& name, const std::string& bytes = "640x480");
    void AddMany(int count, const std::string& extension = ".jpg");
    // Opens the folder and waits until everything is done.
    void Open(const std::string& path = {});
    void Settle();
    void Run(app::CommandId id) { frame->Menu()->Action(id)->trigger(); }

    ui::CIEShellListCtrl& List() { return *frame->List(); }
    QAbstractItemView& View() { return *List().View(); }
    std::vector<std::string> Names() const;
    std::vector<std::string> SelectedNames() const;
    int RowOf(const std::string& name) const;
    void Select(const std::vector<std::string>& names);

    TestServices services;
    CNotingShell shell;
    COddFolders files;
    CServicesGuard guard;
    std::string folder;
    app::CDataFolders dataFolders;
    app::CKelvoApp application;
    ui::CTheme theme;
    std::unique_ptr<ui::CMainFrame> frame;
};

}  // namespace support
