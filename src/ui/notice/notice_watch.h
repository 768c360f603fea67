// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNoticeWatch: looks for cards and phones when something has come or gone, and has the bar above the list
// say so. It offers the window's own commands and does nothing by itself.
//
// The looking goes on on another thread, one look at a time; it only reads.
#pragma once

#include "app/commands.h"
#include "app/notices.h"
#include "platform/devices.h"

#include <QObject>

namespace ui
{

class CMainFrame;
class CNoticeBar;

class CNoticeWatch : public QObject
{
    Q_OBJECT

public:
    // Begins with a look at once. `source` outlives the window.
    CNoticeWatch(platform::CDevices& source, CMainFrame& window);
    ~CNoticeWatch() override;
    // A volume has come or gone.
    void OnDeviceChange(const platform::DeviceChange& change);
    CNoticeBar* Bar() const { return bar; }

private:
    void LookForCard();
    void LookForPhone();
    void Show();
    void ShowOffers();
    void Take(app::CommandId command);

    platform::CDevices& devices;
    CMainFrame& frame;
    CNoticeBar* bar;
    app::CNotices notices;
    bool isLooking = false;
    bool lookAgain = false;
};

}  // namespace ui
