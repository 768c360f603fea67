// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main_menu.h"

#include "ui/display_text.h"
#include "ui/words.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>

#include <algorithm>

namespace ui
{

namespace
{

QList<QKeySequence> Keys(const app::Command& command)
{
    if (command.shortcut.empty())
        return {};
    const QString text = Shown(command.shortcut);
    QList<QKeySequence> keys = {QKeySequence(text)};
    // The other Enter key has a name of its own.
    if (text.contains(QStringLiteral("Enter")))
        keys.append(QKeySequence(QString(text).replace(QStringLiteral("Enter"), QStringLiteral("Return"))));
    return keys;
}

}  // namespace

CMainMenu::CMainMenu(QMainWindow& window) : QObject(&window)
{
    for (const app::Command& command : app::Commands()) {
        QMenu* menu = MenuOf(window, command.menu);
        if (command.startsGroup)
            menu->addSeparator();
        QAction* action = MakeAction(window, command);
        menu->addAction(action);
        actions.emplace(command.id, action);
    }
}

QMenu* CMainMenu::MenuOf(QMainWindow& window, app::MenuId id)
{
    if (const auto known = menus.find(id); known != menus.end())
        return known->second;
    const app::Menu& entry = *std::ranges::find(app::Menus(), id, &app::Menu::id);
    const QString text = Text(entry.text);
    QMenu* menu = nullptr;
    if (entry.parent == id) {
        menu = window.menuBar()->addMenu(QLatin1Char('&') + text);
    } else {
        if (id == app::MenuId::thumbnailSize)
            MenuOf(window, entry.parent)->addSeparator();
        menu = MenuOf(window, entry.parent)->addMenu(text);
    }
    menu->setToolTipsVisible(true);
    menus.emplace(id, menu);
    return menu;
}

QAction* CMainMenu::MakeAction(QMainWindow& window, const app::Command& command)
{
    auto* action = new QAction(Text(command.text), &window);
    action->setShortcuts(Keys(command));
    action->setEnabled(command.missing == StringId::none);
    if (command.missing != StringId::none)
        action->setToolTip(Text(command.missing));
    action->setCheckable(command.mark != app::Mark::none);
    action->setActionGroup(GroupOf(command));
    connect(action, &QAction::triggered, this, [this, id = command.id] { Q_EMIT Triggered(id); });
    return action;
}

QActionGroup* CMainMenu::GroupOf(const app::Command& command)
{
    if (command.mark == app::Mark::none || command.mark == app::Mark::toggle)
        return nullptr;
    QActionGroup*& group = choices[{command.menu, command.mark}];
    if (!group)
        group = new QActionGroup(this);
    return group;
}

}  // namespace ui
