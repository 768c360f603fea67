// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CContextMenus: the menus of the two panes, opened with the mouse, the Menu key or Shift+F10.
//
// A request in a pane becomes the pane's private message to the frame, with the place on the screen in
// lParam; the frame answers it by opening the menu there.
#pragma once

#include "app/context_menus.h"
#include "ui/main_menu.h"

#include <functional>

namespace ui
{

class CContextMenus : public QObject
{
    Q_OBJECT

public:
    using Send = std::function<void(app::FrameMessage, std::int64_t lParam)>;

    CContextMenus(const CMainMenu& commands, Send sendMessage, QWidget* window);
    // Requests within the widget are those of the pane.
    void Watch(QWidget* widget, app::MenuPane pane);
    // The menu of the pane that has the focus, below its current item; false when no pane has it.
    bool OpenByKey();
    void Open(app::MenuPane pane, std::int64_t lParam);
    QMenu* Menu(app::MenuPane pane) const { return menus.at(pane); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Request(app::MenuPane pane, QPoint place);

    Send send;
    std::map<app::MenuPane, QMenu*> menus;
    std::map<const QObject*, app::MenuPane> panes;
};

}  // namespace ui
