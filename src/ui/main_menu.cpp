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

// The text on a button: without the mark of its key and the dots, which some languages write as one sign.
QString OnButton(QString text)
{
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text.trimmed();
}

// Marks, in each text of a menu that has none yet, the first letter that no other has, so that Alt and the
// letter, or the letter alone once the menu is open, choose it in any language.
void GiveKeys(const QList<QAction*>& entries)
{
    QString taken;
    for (const QAction* entry : entries) {
        const QString text = entry->text().toUpper();
        if (const auto mark = text.indexOf(QLatin1Char('&')); mark >= 0)
            taken += text.mid(mark + 1, 1);
    }
    for (QAction* entry : entries) {
        QString text = entry->text();
        if (text.contains(QLatin1Char('&')))
            continue;
        const auto isFree = [&taken](QChar letter) {
            return letter.isLetterOrNumber() && !taken.contains(letter.toUpper());
        };
        const auto letter = std::find_if(text.begin(), text.end(), isFree);
        if (letter == text.end())
            continue;
        taken += letter->toUpper();
        entry->setText(text.insert(letter - text.begin(), QLatin1Char('&')));
    }
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
    GiveKeys(window.menuBar()->actions());
    for (const auto& [id, menu] : menus)
        GiveKeys(menu->actions());
}

QMenu* CMainMenu::MenuOf(QMainWindow& window, app::MenuId id)
{
    if (const auto known = menus.find(id); known != menus.end())
        return known->second;
    const app::Menu& entry = *std::ranges::find(app::Menus(), id, &app::Menu::id);
    const QString text = Text(entry.text);
    QMenu* menu = nullptr;
    if (entry.parent == id) {
        menu = window.menuBar()->addMenu(text);
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
    action->setIconText(OnButton(action->text()));
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
