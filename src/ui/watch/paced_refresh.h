// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPacedRefresh: when a control that is told of changes reads anew.
//
// Changes asked for while it reads, or soon after, are followed by one reading, at the pace of
// browser::CRefreshPace.
#pragma once

#include "browser/refresh_pace.h"

#include <QElapsedTimer>
#include <QTimer>

namespace ui
{

class CPacedRefresh : public QObject
{
    Q_OBJECT

public:
    CPacedRefresh();

    // Something has changed: Due follows, now or later.
    void Request();
    // The control cannot be disturbed now: Due comes again in a moment.
    void Postpone();
    // The control begins to read, whatever for, and has ended.
    void Begin();
    void End();

Q_SIGNALS:
    void Due();

private:
    std::uint64_t Now() const { return static_cast<std::uint64_t>(clock.elapsed()); }

    browser::CRefreshPace pace;
    QElapsedTimer clock;
    QTimer timer;
    bool isReading = false;
    bool isWanted = false;
};

}  // namespace ui
