// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tone/tone_commands.h"

#include "browser/file_names.h"
#include "ui/main_frame.h"
#include "ui/tone/tone_dialog.h"
#include "ui/words.h"

#include <algorithm>

namespace ui
{

namespace
{

bool IsSource(const std::string& path)
{
    const app::ToneKind kind = app::ToneKindOf(browser::FileName(path));
    return kind == app::ToneKind::midi || kind == app::ToneKind::wav;
}

}  // namespace

CToneCommands::CToneCommands(CCommandRouter& router, CMainFrame& mainFrame) : frame(mainFrame)
{
    router.On(app::CommandId::convertTone, [this] { Convert(); });
    AddTo(*frame.ContextMenus().Menu(app::MenuPane::list));
}

void CToneCommands::AddTo(QMenu& menu)
{
    // Its own action: the one in the menu bar is always there.
    auto* convert = new QAction(frame.Menu()->Action(app::CommandId::convertTone)->text(), &menu);
    menu.insertAction(frame.Menu()->Action(app::CommandId::slideShow), convert);
    QObject::connect(convert, &QAction::triggered, &frame, [this] { Convert(); });
    QObject::connect(&menu, &QMenu::aboutToShow, convert,
                     [this, convert] { convert->setVisible(!Sources().empty()); });
}

std::vector<std::string> CToneCommands::Sources() const
{
    std::vector<std::string> paths = frame.List()->SelectedPaths();
    std::erase_if(paths, [](const std::string& path) { return !IsSource(path); });
    return paths;
}

void CToneCommands::Convert()
{
    const std::vector<std::string> sources = Sources();
    if (sources.empty())
        return frame.Tell(Text(StringId::toneNothing));
    auto* dialog = new CToneDialog(sources, &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CToneDialog::Chosen, &frame, [this](const std::vector<app::ToneOrder>& orders) {
        std::vector<std::string> paths;
        for (const app::ToneOrder& order : orders)
            paths.push_back(order.source);
        frame.Files()->Start(browser::FileTask::makeTones, std::move(paths),
                             [orders](browser::CFileJobHost& host) { return app::WriteTones(orders, host); });
    });
    dialog->open();
}

}  // namespace ui
