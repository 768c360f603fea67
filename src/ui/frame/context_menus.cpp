// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/context_menus.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>

namespace ui
{

namespace
{

// Where a menu asked for by a key belongs: below the current item, or at the widget's corner.
QPoint PlaceForKey(QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    if (!view)
        return widget->mapToGlobal(widget->rect().center());
    const QRect item = view->visualRect(view->currentIndex()).intersected(view->viewport()->rect());
    return view->viewport()->mapToGlobal(item.isEmpty() ? QPoint() : item.center());
}

}  // namespace

CContextMenus::CContextMenus(const CMainMenu& commands, Send sendMessage, QWidget* window)
    : QObject(window), send(std::move(sendMessage))
{
    for (const app::MenuPane pane : {app::MenuPane::leftPane, app::MenuPane::list}) {
        auto* menu = new QMenu(window);
        menu->setToolTipsVisible(true);
        for (const auto& group : app::ContextMenu(pane)) {
            menu->addSeparator();
            for (const app::CommandId id : group)
                menu->addAction(commands.Action(id));
        }
        menus.emplace(pane, menu);
    }
}

void CContextMenus::Watch(QWidget* widget, app::MenuPane pane)
{
    panes[widget] = pane;
    widget->installEventFilter(this);
}

bool CContextMenus::eventFilter(QObject* watched, QEvent* event)
{
    const auto pane = panes.find(watched);
    if (event->type() != QEvent::ContextMenu || pane == panes.end())
        return QObject::eventFilter(watched, event);
    const auto& wanted = static_cast<const QContextMenuEvent&>(*event);
    QWidget* const focus = QApplication::focusWidget();
    const bool byKey = wanted.reason() == QContextMenuEvent::Keyboard;
    Request(pane->second, byKey && focus ? PlaceForKey(focus) : wanted.globalPos());
    return true;
}

bool CContextMenus::OpenByKey()
{
    QWidget* const focus = QApplication::focusWidget();
    if (focus && focus->contextMenuPolicy() == Qt::PreventContextMenu)
        return false;
    for (QObject* above = focus; above; above = above->parent()) {
        if (const auto pane = panes.find(above); pane != panes.end()) {
            Request(pane->second, PlaceForKey(focus));
            return true;
        }
    }
    return false;
}

void CContextMenus::Request(app::MenuPane pane, QPoint place)
{
    const auto message =
        pane == app::MenuPane::list ? app::FrameMessage::listMenu : app::FrameMessage::leftPaneMenu;
    send(message, app::PackPoint({place.x(), place.y()}));
}

void CContextMenus::Open(app::MenuPane pane, std::int64_t lParam)
{
    const app::ScreenPoint point = app::UnpackPoint(lParam);
    menus.at(pane)->popup({point.x, point.y});
}

}  // namespace ui
