// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main_frame.h"

#include "browser/file_names.h"
#include "browser/media_types.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/controls/skin.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/printer_defaults.h"
#include "ui/theme.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>

#include <array>
#include <utility>

namespace ui
{

namespace
{

constexpr int kThumbnailPeriod = 10;  // milliseconds
constexpr int kLeftWidth = 260;
constexpr int kRightWidth = 1020;

}  // namespace

CMainFrame::CMainFrame(const app::CKelvoApp& application, app::CDataFolders& dataFolders)
    : owner(application), folders(dataFolders),
      state({ReadPrinterDefaults, [this](bool on) { setEnabled(on); },
             [this](const std::string& text) { Tell(Shown(text)); }}),
      menu(new CMainMenu(*this)), left(new CLeftView(folders)),
      right(new CIEShellListView(owner.DbFolder(), *menu)), status(new CStatusBar(this))
{
    UseSkin(owner.SkinFolder());
    LoadSettings();
    const std::string caption = owner.Caption();
    setWindowTitle(Shown(caption.empty() ? owner.Title() : caption));
    BuildPanes();
    ConnectList();
    connect(menu, &CMainMenu::Triggered, this, &CMainFrame::Run);
    for (const auto id : {app::CommandId::thumbnails, app::CommandId::sizeMedium, app::CommandId::filterMedia,
                          app::CommandId::sortByName})
        menu->Check(id);
    thumbnailTimer.setTimerType(Qt::PreciseTimer);
    thumbnailTimer.setInterval(kThumbnailPeriod);
    connect(&thumbnailTimer, &QTimer::timeout, this, &CMainFrame::Tick);
    state.Listen();
}

CMainFrame::~CMainFrame()
{
    settings.Save();
    app::CurrentSettings() = nullptr;
}

void CMainFrame::LoadSettings()
{
    settings.Load(browser::JoinPath(owner.ProgramFolder(), "Kelvo.ini"));
    app::CurrentSettings() = &settings;
}

void CMainFrame::BuildPanes()
{
    auto* splitter = new QSplitter(this);
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({kLeftWidth, kRightWidth});
    left->setMinimumWidth(40 * kGrid);
    right->setMinimumWidth(60 * kGrid);
    setCentralWidget(splitter);
    setStatusBar(status);
    right->setFocus();
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
    connect(right, &CIEShellListView::ThumbnailStepChosen, this, [this](int step) {
        constexpr std::array sizes = {app::CommandId::sizeSmall, app::CommandId::sizeMedium,
                                      app::CommandId::sizeLarge};
        menu->Check(sizes[static_cast<std::size_t>(step)]);
    });
    connect(right->UpAction(), &QAction::triggered, this, &CMainFrame::GoUp);
}

void CMainFrame::Tick()
{
    if (!List()->ThumbnailStep())
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

void CMainFrame::Run(app::CommandId id)
{
    using app::CommandId;
    switch (id) {
    case CommandId::exit:
        close();
        break;
    case CommandId::search:
        left->ShowTab(app::kSearchTab);
        break;
    case CommandId::help:
        ShowHelp();
        break;
    case CommandId::about:
        ShowAbout();
        break;
    case CommandId::copy:
        List()->CopySelection();
        break;
    case CommandId::selectAll:
        List()->SelectAll();
        break;
    case CommandId::selectNone:
        List()->SelectNone();
        break;
    case CommandId::invertSelection:
        List()->InvertSelection();
        break;
    default:
        RunViewCommand(id);
        break;
    }
}

void CMainFrame::RunViewCommand(app::CommandId id)
{
    using app::CommandId;
    constexpr int kKeep = browser::CMediaFileList::kKeep;
    switch (id) {
    case CommandId::thumbnails:
        right->SetViewStyle(ViewStyle::thumbnails);
        break;
    case CommandId::details:
        right->SetViewStyle(ViewStyle::details);
        break;
    case CommandId::sizeLarge:
        right->SetThumbnailStep(2);
        break;
    case CommandId::sizeMedium:
        right->SetThumbnailStep(1);
        break;
    case CommandId::sizeSmall:
        right->SetThumbnailStep(0);
        break;
    case CommandId::filterPhoto:
        List()->SetFilter(browser::kFilterPhoto, kKeep);
        break;
    case CommandId::filterVideo:
        List()->SetFilter(browser::kFilterVideo, kKeep);
        break;
    case CommandId::filterMedia:
        List()->SetFilter(browser::kFilterMedia, kKeep);
        break;
    case CommandId::filterAllFiles:
        List()->SetFilter(browser::kFilterAllFiles, kKeep);
        break;
    case CommandId::includeFolder:
        List()->SetFilter(kKeep, menu->Action(id)->isChecked() ? 1 : 0);
        break;
    case CommandId::refresh:
        left->Tree()->Refresh();
        List()->Refresh();
        break;
    default:
        break;
    }
}

void CMainFrame::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F6)
        SwitchPane();
    else
        QMainWindow::keyPressEvent(event);
}

void CMainFrame::SwitchPane()
{
    if (left->isAncestorOf(focusWidget()))
        right->setFocus(Qt::OtherFocusReason);
    else
        left->setFocus(Qt::OtherFocusReason);
}

void CMainFrame::ShowHelp()
{
    const std::string page = browser::JoinPath(owner.ProgramFolder(), "Help/index.htm");
    if (platform::Os().files->FindFirstFile(page))
        platform::Os().shell->ShellExecute(page);
}

void CMainFrame::ShowAbout()
{
    auto* box = new QMessageBox(
        QMessageBox::NoIcon, QStringLiteral("About"),
        QStringLiteral("%1 %2").arg(Shown(owner.Title()), Shown(owner.VersionText().substr(0, 4))),
        QMessageBox::Ok, this);
    box->setInformativeText(QStringLiteral("A manager for photos and other media."));
    box->setIconPixmap(IconPixmap(QStringLiteral("kelvo"), 64, CTheme::Colours().text, devicePixelRatioF()));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void CMainFrame::Tell(const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Information, windowTitle(), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace ui
