// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window_keeper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>

#include <algorithm>

namespace ui
{

namespace
{

// When the window is not maximised and was never moved.
constexpr QSize kNormalSize(1120, 720);
// So much of a window must be on a screen that it can be taken hold of.
constexpr QSize kHold(120, 40);
constexpr int kSaveDelay = 3000;  // milliseconds

// The rectangle moved and cut so that it lies on a screen; empty where it lies on none.
QRect OnScreen(const QRect& wanted)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto holds = [&wanted](const QScreen* screen) {
        const QRect shared = screen->availableGeometry() & wanted;
        return shared.width() >= kHold.width() && shared.height() >= kHold.height();
    };
    const auto found = std::ranges::find_if(screens, holds);
    if (found == screens.end())
        return {};
    const QRect room = (*found)->availableGeometry();
    QRect rect(wanted.topLeft(), wanted.size().boundedTo(room.size()));
    rect.moveTop(std::max(rect.top(), room.top()));
    return rect;
}

}  // namespace

CWindowKeeper::CWindowKeeper(QMainWindow& kept, QSplitter& panes, std::string settingsFile)
    : window(kept), splitter(panes), file(std::move(settingsFile))
{
    saveTimer.setSingleShot(true);
    saveTimer.setInterval(kSaveDelay);
    connect(&saveTimer, &QTimer::timeout, this, &CWindowKeeper::Save);
    connect(&splitter, &QSplitter::splitterMoved, &saveTimer, qOverload<>(&QTimer::start));
}

void CWindowKeeper::Show()
{
    place = app::LoadWindowPlace(file);
    const platform::Rect& left = place.normal;
    const QRect rect = OnScreen({left.left, left.top, left.right - left.left, left.bottom - left.top});
    if (rect.isEmpty())
        window.resize(kNormalSize);
    else
        window.setGeometry(rect);
    if (place.maximised)
        window.showMaximized();
    else
        window.show();
    if (place.leftWidth > 0)
        splitter.setSizes({place.leftWidth, std::max(1, splitter.width() - place.leftWidth)});
    window.installEventFilter(this);
}

bool CWindowKeeper::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange)
        saveTimer.start();
    return QObject::eventFilter(watched, event);
}

void CWindowKeeper::Save()
{
    saveTimer.stop();
    const QRect rect = window.isMaximized() || window.isMinimized() || window.isFullScreen()
                           ? window.normalGeometry()
                           : window.geometry();
    if (rect.isValid())
        place.normal = {rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1};
    if (!window.isMinimized() && !window.isFullScreen())
        place.maximised = window.isMaximized();
    place.leftWidth = splitter.sizes().value(0);
    app::SaveWindowPlace(file, place);
}

}  // namespace ui
