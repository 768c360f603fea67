// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMainMenu: the commands of app/commands.h as menus and actions of a window.
#pragma once

#include "app/commands.h"

#include <QAction>
#include <QMenu>

#include <map>

class QActionGroup;
class QMainWindow;

namespace ui
{

class CMainMenu : public QObject
{
    Q_OBJECT

public:
    // Fills the window's menu bar.
    explicit CMainMenu(QMainWindow& window);
    QMenu* Menu(app::MenuId id) const { return menus.at(id); }
    QAction* Action(app::CommandId id) const { return actions.at(id); }
    void Check(app::CommandId id) { actions.at(id)->setChecked(true); }

Q_SIGNALS:
    void Triggered(app::CommandId id);

private:
    QMenu* MenuOf(QMainWindow& window, app::MenuId id);
    QAction* MakeAction(QMainWindow& window, const app::Command& command);
    QActionGroup* GroupOf(const app::Command& command);

    std::map<app::MenuId, QMenu*> menus;
    std::map<std::pair<app::MenuId, app::Mark>, QActionGroup*> choices;
    std::map<app::CommandId, QAction*> actions;
};

}  // namespace ui
