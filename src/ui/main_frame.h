// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMainFrame: the main window. It holds the two panes and the groups of commands, and ticks the making of
// thumbnails. What a command does stands with its group in ui/commands.
#pragma once

#include "app/data_folders.h"
#include "app/device_state.h"
#include "app/kelvo_app.h"
#include "app/main_frame_state.h"
#include "app/settings.h"
#include "ui/commands/edit_commands.h"
#include "ui/commands/file_commands.h"
#include "ui/commands/help_commands.h"
#include "ui/commands/tool_commands.h"
#include "ui/commands/view_commands.h"
#include "ui/files/file_actions.h"
#include "ui/frame/context_menus.h"
#include "ui/frame/focus_walk.h"
#include "ui/frame/frame_bars.h"
#include "ui/handset/handset_commands.h"
#include "ui/ie_shell_list_view.h"
#include "ui/left_view.h"
#include "ui/main_menu.h"
#include "ui/photo/batch_commands.h"
#include "ui/photo/photo_info_pane.h"
#include "ui/status_bar.h"
#include "ui/tone/tone_commands.h"
#include "ui/viewer/viewer_pages.h"

#include <QMainWindow>
#include <QTimer>

class QSplitter;

namespace ui
{

class CNoticeWatch;

class CMainFrame : public QMainWindow
{
    Q_OBJECT

public:
    // Both must outlive the window.
    CMainFrame(const app::CKelvoApp& application, app::CDataFolders& dataFolders);
    ~CMainFrame() override;

    // Shows a folder in both panes; `selectName` becomes selected when it is there.
    void GoTo(const std::string& folder, const std::string& selectName = {});
    // The folder that the window starts with when none is asked for.
    void GoToStart();
    // Tells the user something, without waiting for an answer; `more` explains it in smaller letters.
    void Tell(const QString& text, const QString& more = {});
    void Warn(const QString& title, const QString& text);
    // The panes' private messages.
    void SendMessage(app::FrameMessage message, std::int64_t lParam = 0);

    const app::CKelvoApp& Application() const { return owner; }
    app::CDataFolders& Folders() const { return folders; }
    CLeftView* LeftView() const { return left; }
    CIEShellListView* ListView() const { return right; }
    CIEShellListCtrl* List() const { return right->Ctrl(); }
    CViewerPages* Pages() const { return pages; }
    CFileActions* Files() const { return files; }
    CStatusBar* Status() const { return status; }
    QSplitter* Panes() const { return panes; }
    CPhotoInfoPane* PhotoInfo() const { return photoInfo; }
    std::string SettingsFile() const;
    const CMainMenu* Menu() const { return menu; }
    const CCommandRouter& Router() const { return router; }
    CFrameBars& Bars() { return bars; }
    CContextMenus& ContextMenus() { return *contextMenus; }
    CToolCommands& Tools() { return toolCommands; }
    app::CMainFrameState& State() { return state; }
    const app::CDeviceState& Devices() const { return devices; }
    // Null where nothing is told of devices.
    CNoticeWatch* Notices() const { return notices; }
    // Whether the thumbnail timer runs.
    bool IsTicking() const { return thumbnailTimer.isActive(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override { return WalkFocus(*this, next); }

private:
    void LoadSettings();
    void BuildPanes();
    void ConnectList();
    void ConnectFiles();
    void BuildPhotoInfo(QSplitter& beside);
    void CloseAfterJobs();
    void Tick();
    void GoUp();
    void SwitchPane();
    void WatchDevices();

    const app::CKelvoApp& owner;
    app::CDataFolders& folders;
    app::CSettings settings;
    app::CMainFrameState state;
    app::CDeviceState devices;
    CMainMenu* menu;
    CLeftView* left;
    CIEShellListView* right;
    CViewerPages* pages;  // holds the right pane
    CStatusBar* status;
    QSplitter* panes;
    CFileActions* files;
    CPhotoInfoPane* photoInfo;
    CNoticeWatch* notices = nullptr;
    std::string nameWanted;  // to be selected in the folder that is about to open
    QTimer thumbnailTimer;
    CFrameBars bars;
    CContextMenus* contextMenus;
    CCommandRouter router;
    CFileCommands fileCommands;
    CEditCommands editCommands;
    CViewCommands viewCommands;
    CToolCommands toolCommands;
    CHelpCommands helpCommands;
    CBatchCommands batchCommands;
    CToneCommands toneCommands;
    CHandsetCommands handsetCommands;
};

}  // namespace ui
