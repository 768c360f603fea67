// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main_frame.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/background.h"
#include "ui/controls/message_box.h"
#include "ui/controls/skin.h"
#include "ui/display_text.h"
#include "ui/files/report_box.h"
#include "ui/frame/waiting_question.h"
#include "ui/list/list_commands.h"
#include "ui/notice/notice_watch.h"
#include "ui/photo/photo_info_view.h"
#include "ui/printer_defaults.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>

#include <utility>

namespace ui
{

namespace
{

constexpr int kThumbnailPeriod = 10;  // milliseconds
constexpr int kLeftWidth = 260;
constexpr int kRightWidth = 1020;

void OpenBox(CMainFrame& frame, CMessageBox::Icon sign, const QString& title, const QString& text,
             const QString& more)
{
    auto* box = new CMessageBox(sign, title, text, &frame);
    box->setInformativeText(more);
    box->Add(CMessageBox::Ok);
    box->Open();
}

}  // namespace

CMainFrame::CMainFrame(const app::CKelvoApp& application, app::CDataFolders& dataFolders)
    : owner(application), folders(dataFolders),
      state({ReadPrinterDefaults, [this](bool on) { setEnabled(on); },
             [this](StringId text) { Tell(Text(text)); }}),
      menu(new CMainMenu(*this)), left(new CLeftView(folders)),
      right(new CIEShellListView(owner.DbFolder(), SettingsFile(), *menu)), pages(new CViewerPages(right)),
      status(new CStatusBar(this)), panes(new QSplitter(this)),
      files(new CFileActions(*right->Ctrl(), *left, *this, {owner.DbFolder(), folders.JournalFolder()})),
      bars(*menu, owner.ProgramFolder(), *this),
      contextMenus(new CContextMenus(
          *menu, [this](app::FrameMessage message, std::int64_t lParam) { SendMessage(message, lParam); },
          this)),
      fileCommands(router, *this), editCommands(router, *this), viewCommands(router, *this),
      toolCommands(router, *this), helpCommands(router, *this), batchCommands(router, *this),
      toneCommands(router, *this), handsetCommands(router, *this)
{
    UseSkin(owner.SkinFolder());
    LoadSettings();
    const std::string caption = owner.Caption();
    setWindowTitle(Shown(caption.empty() ? owner.Title() : caption));
    BuildPanes();
    ConnectList();
    ConnectFiles();
    connect(menu, &CMainMenu::Triggered, this, [this](app::CommandId id) { router.Run(id); });
    thumbnailTimer.setTimerType(Qt::PreciseTimer);
    thumbnailTimer.setInterval(kThumbnailPeriod);
    connect(&thumbnailTimer, &QTimer::timeout, this, &CMainFrame::Tick);
    state.Listen();
    contextMenus->Watch(left, app::MenuPane::leftPane);
    contextMenus->Watch(List(), app::MenuPane::list);
    WatchDevices();
}

CMainFrame::~CMainFrame()
{
    if (platform::Os().devices)
        platform::Os().devices->Watch(nullptr);
    settings.Save();
    app::CurrentSettings() = nullptr;
}

std::string CMainFrame::SettingsFile() const
{
    return browser::JoinPath(owner.ProgramFolder(), "Kelvo.ini");
}

void CMainFrame::LoadSettings()
{
    settings.Load(SettingsFile());
    app::CurrentSettings() = &settings;
}

void CMainFrame::BuildPanes()
{
    auto* rightHalf = new QSplitter(panes);
    rightHalf->addWidget(pages);
    rightHalf->setChildrenCollapsible(false);
    rightHalf->setStretchFactor(0, 1);
    panes->addWidget(left);
    panes->addWidget(rightHalf);
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    panes->setSizes({kLeftWidth, kRightWidth});
    left->setMinimumWidth(40 * kGrid);
    pages->setMinimumWidth(60 * kGrid);
    BuildPhotoInfo(*rightHalf);
    setCentralWidget(panes);
    setStatusBar(status);
    right->setFocus();
}

void CMainFrame::BuildPhotoInfo(QSplitter& beside)
{
    photoInfo = new CPhotoInfoPane(*List(), *files, SettingsFile(), beside);
    QAction* const shown = menu->Action(app::CommandId::photoInfo);
    connect(photoInfo, &CPhotoInfoPane::Turned, shown, &QAction::setChecked);
    shown->setChecked(photoInfo->IsOn());
}

void CMainFrame::ConnectList()
{
    CIEShellListCtrl* list = List();
    connect(left, &CLeftView::FolderChosen, this,
            [this](const std::string& path) { right->OpenFolder(path, std::exchange(nameWanted, {})); });
    connect(list, &CIEShellListCtrl::FolderActivated, this, [this](const std::string& path) { GoTo(path); });
    connect(list, &CIEShellListCtrl::WorkAppeared, this, [this] {
        if (!thumbnailTimer.isActive())
            thumbnailTimer.start();
    });
    connect(list, &CIEShellListCtrl::StatusChanged, this, [this] { status->ShowFiles(*List()); });
    connect(list, &CIEShellListCtrl::ThumbnailMade, this, [this] { status->ShowThumbnails(*List()); });
    connect(list, &CIEShellListCtrl::LayoutChanged, this, [this] { MarkListCommands(*menu, *List()); });
    MarkListCommands(*menu, *list);
    connect(pages, &CViewerPages::CommandWanted, this,
            [this](app::CommandId id) { menu->Action(id)->trigger(); });
    connect(right->UpAction(), &QAction::triggered, this, &CMainFrame::GoUp);
}

void CMainFrame::ConnectFiles()
{
    connect(files, &CFileActions::FolderMoved, this, [this](const std::string& path) { GoTo(path); });
    const auto showUndo = [this](const QString& text, bool possible) {
        menu->Action(app::CommandId::undo)->setText(text);
        menu->Action(app::CommandId::undo)->setEnabled(possible);
    };
    connect(files, &CFileActions::UndoChanged, this, showUndo);
    showUndo(UndoText(nullptr), false);
    auto* forGood = new QAction(Text(StringId::filesDeleteForGood), this);
    forGood->setShortcut(Qt::SHIFT | Qt::Key_Delete);
    connect(forGood, &QAction::triggered, files, &CFileActions::DeleteForGood);
    QAction* const remove = menu->Action(app::CommandId::remove);
    connect(remove, &QAction::changed, forGood, [=] { forGood->setEnabled(remove->isEnabled()); });
    addAction(forGood);
    files->Attend(*menu->Menu(app::MenuId::edit), *menu);
    for (const app::MenuPane pane : {app::MenuPane::leftPane, app::MenuPane::list}) {
        QMenu& contextMenu = *contextMenus->Menu(pane);
        contextMenu.insertAction(menu->Action(app::CommandId::rename), forGood);
        files->Attend(contextMenu, *menu);
    }
    files->AddOpening(*contextMenus->Menu(app::MenuPane::list));
}

void CMainFrame::Tick()
{
    // The picture that is looked at has the machine for itself.
    if (pages->IsViewing() || !List()->ThumbnailStep())
        thumbnailTimer.stop();
}

void CMainFrame::GoTo(const std::string& folder, const std::string& selectName)
{
    nameWanted = selectName;
    left->SelectFolder(folder);
}

void CMainFrame::GoToStart()
{
    std::string start = folders.FolderPath(app::DataFolderKind::photo);
    if (folders.FavouriteRoot().size() > 1)
        start.pop_back();
    else
        start = platform::Os().shell->GetFolderPath(platform::KnownFolder::home, false).value_or("/");
    GoTo(start);
}

void CMainFrame::GoUp()
{
    const std::string folder = List()->List().Folder();
    if (!folder.empty() && folder != "/")
        GoTo(std::string(browser::FolderOf(folder)), std::string(browser::FileName(folder)));
}

void CMainFrame::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F6)
        SwitchPane();
    else if (event->key() != Qt::Key_F10 || event->modifiers() != Qt::ShiftModifier ||
             !contextMenus->OpenByKey())
        QMainWindow::keyPressEvent(event);
}

void CMainFrame::closeEvent(QCloseEvent* event)
{
    event->setAccepted(isEnabled() && !photoInfo->IsEdited());
    if (!isEnabled())
        AskAboutWaiting(*this);
    else if (photoInfo->IsEdited())
        photoInfo->Settle([this] { CloseAfterJobs(); });
}

// What was just asked for would be stopped with the window. It stays when something could not be done.
void CMainFrame::CloseAfterJobs()
{
    if (!files->Jobs().IsBusy()) {
        close();
        return;
    }
    connect(
        files, &CFileActions::Done, this,
        [this](const browser::FileJobReport& report) {
            if (report.problemCount == 0)
                CloseAfterJobs();
        },
        Qt::SingleShotConnection);
}

void CMainFrame::SwitchPane()
{
    if (left->isAncestorOf(focusWidget()))
        pages->setFocus(Qt::OtherFocusReason);
    else if (photoInfo->IsOn() && !photoInfo->isAncestorOf(focusWidget()))
        photoInfo->View()->Tabs()->setFocus(Qt::OtherFocusReason);
    else
        left->setFocus(Qt::OtherFocusReason);
}

void CMainFrame::WatchDevices()
{
    platform::CDevices* source = platform::Os().devices;
    if (!source)
        return;
    notices = new CNoticeWatch(*source, *this);
    source->Watch([this](const platform::DeviceChange& change) {
        devices.OnDeviceChange(change);
        notices->OnDeviceChange(change);
        InBackground(
            this, [shell = platform::Os().shell] { return shell->Volumes(); },
            [this](const std::vector<platform::Volume>& volumes) { left->UpdateVolumes(volumes); });
        const std::string& folder = List()->List().Folder();
        if (folder == change.mountPoint || folder.starts_with(change.mountPoint + "/"))
            List()->Refresh();
    });
}

void CMainFrame::SendMessage(app::FrameMessage message, std::int64_t lParam)
{
    switch (message) {
    case app::FrameMessage::leftPaneMenu:
        contextMenus->Open(app::MenuPane::leftPane, lParam);
        break;
    case app::FrameMessage::listMenu:
        contextMenus->Open(app::MenuPane::list, lParam);
        break;
    case app::FrameMessage::refreshList:
        List()->Refresh();
        break;
    }
}

void CMainFrame::Tell(const QString& text, const QString& more)
{
    OpenBox(*this, CMessageBox::Information, windowTitle(), text, more);
}

void CMainFrame::Warn(const QString& title, const QString& text)
{
    OpenBox(*this, CMessageBox::Warning, title, text, {});
}

}  // namespace ui
