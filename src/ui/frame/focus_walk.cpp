// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/focus_walk.h"

#include <QWidget>

namespace ui
{

namespace
{

bool IsStop(const QWidget& control, const QWidget& window)
{
    return control.window() == &window && !control.focusProxy() &&
           (control.focusPolicy() & Qt::TabFocus) != 0 && control.isEnabled() && control.isVisibleTo(&window);
}

}  // namespace

bool WalkFocus(QWidget& window, bool next)
{
    const auto step = [next](const QWidget* from) {
        return next ? from->nextInFocusChain() : from->previousInFocusChain();
    };
    QWidget* const from = window.focusWidget() ? window.focusWidget() : &window;
    for (QWidget* control = step(from); control != from; control = step(control)) {
        if (IsStop(*control, window)) {
            control->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

}  // namespace ui
