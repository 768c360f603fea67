// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/frame_bars.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "ui/controls/skin.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QToolButton>

namespace ui
{

namespace
{

using app::CommandId;

constexpr const char* kSection = "Frame";
constexpr CommandId kLine = CommandId::exit;  // stands for a line between two groups

struct Tool {
    CommandId id;
    const char* image = "";    // the skin's
    const char* drawing = "";  // where the skin has none
};

constexpr Tool kToolBar[] = {
    {CommandId::slideShow, "slide show.png", "slide-show"},
    {CommandId::print, "print.png", "print"},
    {CommandId::eMail, "email.png", "mail"},
    {kLine},
    {CommandId::imageSize, "resize.png", "resize"},
    {CommandId::photoTrim, "photo_trim.png", "trim"},
    {CommandId::whiteboardCleanUp, "whiteboard.png", "whiteboard"},
    {kLine},
    {CommandId::screenCapture, "capture.png", "capture"},
    {CommandId::selectSource, "acquire.png", "scanner"},
    {kLine},
    {CommandId::search, "search.png", "search"},
    {CommandId::properties, "properties.png", "properties"},
};

constexpr Tool kTaskPanel[] = {
    {CommandId::backToTaskPanel, "task panel.png", "back"},
    {kLine},
    {CommandId::uploadToPc, "upload.png", "upload"},
    {CommandId::downloadToMobile, "download.png", "download"},
    {CommandId::cameraDownload, "camera.png", "camera"},
    {CommandId::acquire, "acquire.png", "scanner"},
    {kLine},
    {CommandId::messageCenter, "message.png", "message"},
    {CommandId::mms, "message.png", "message"},
    {CommandId::sms, "message.png", "message"},
    {CommandId::pim, "pim.png", "contacts"},
};

std::span<const Tool> ToolsOf(CommandId bar)
{
    return bar == CommandId::toolBar ? std::span<const Tool>(kToolBar) : std::span<const Tool>(kTaskPanel);
}

const char* KeyOf(CommandId bar)
{
    return bar == CommandId::toolBar ? "ToolBar" : "TaskPanel";
}

}  // namespace

CFrameBars::CFrameBars(const CMainMenu& commands, std::string iniFolder, QMainWindow& window)
    : menu(commands), programFolder(std::move(iniFolder))
{
    for (const CommandId bar : {CommandId::toolBar, CommandId::taskPanel}) {
        bars[bar] = Make(bar, window);
        window.addToolBar(Qt::TopToolBarArea, bars[bar]);
        const bool wanted = IsWanted(bar);
        bars[bar]->setVisible(wanted);
        menu.Action(bar)->setChecked(wanted);
    }
    window.insertToolBarBreak(bars[CommandId::taskPanel]);
    // The menu "View" is the one place where bars are chosen.
    window.setContextMenuPolicy(Qt::NoContextMenu);
}

QToolBar* CFrameBars::Make(CommandId bar, QMainWindow& window)
{
    auto* made = new QToolBar(menu.Action(bar)->iconText(), &window);
    made->setObjectName(QString::fromLatin1(KeyOf(bar)));
    made->setAccessibleName(made->windowTitle());
    made->setMovable(false);
    // Room beside the pictures, which are 20 wide.
    made->setIconSize({24, 20});
    made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Tool& tool : ToolsOf(bar)) {
        if (tool.id == kLine) {
            if (!made->actions().isEmpty() && !made->actions().constLast()->isSeparator())
                made->addSeparator();
            continue;
        }
        const bool works = app::FindCommand(tool.id).missing == StringId::none;
        if (bar == CommandId::toolBar && !works)
            continue;
        QAction* const action = menu.Action(tool.id);
        action->setIcon(
            SkinIcon(*tool.image ? QStringLiteral("Manager/") + QString::fromLatin1(tool.image) : QString(),
                     QString::fromLatin1(tool.drawing)));
        action->setIconVisibleInMenu(false);
        made->addAction(action);
        made->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
        made->widgetForAction(action)->setAccessibleName(action->iconText());
    }
    return made;
}

bool CFrameBars::IsWanted(CommandId bar) const
{
    const std::string launcher = browser::JoinPath(programFolder, "Hubdeck.exe");
    const bool atFirst =
        bar == CommandId::toolBar || platform::Os().files->FindFirstFile(launcher).has_value();
    return platform::Os().profiles->GetPrivateProfileInt(kSection, KeyOf(bar), atFirst ? 1 : 0,
                                                         browser::JoinPath(programFolder, "Kelvo.ini")) != 0;
}

void CFrameBars::Show(CommandId bar, bool on)
{
    bars.at(bar)->setVisible(on);
    platform::Os().profiles->WritePrivateProfileString(kSection, KeyOf(bar), on ? "1" : "0",
                                                       browser::JoinPath(programFolder, "Kelvo.ini"));
}

}  // namespace ui
