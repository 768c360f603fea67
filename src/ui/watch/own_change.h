// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// COwnChange: the program's own work on what a control follows, from its start to the reading after it.
//
// The watcher swallows the first change, and what it tells of further ones is held back. The reading at the
// end shows all of it, and whatever others did meanwhile; where work takes longer than a second, or that
// reading does not come, one is asked for.
#pragma once

#include "ui/watch/paced_refresh.h"

#include <utility>

namespace ui
{

// `Watch`: browser::CListWatch or browser::CTreeWatch.
template <class Watch> class COwnChange
{
public:
    // Both must outlive it.
    COwnChange(Watch& watcher, CPacedRefresh& refresh) : watch(watcher)
    {
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &refresh, [this, &refresh] {
            if (End())
                refresh.Request();
        });
    }

    void Begin()
    {
        watch.SwallowNextChange();
        isOn = true;
        timer.start(kLongest);
    }
    // Whether a change that was just told of is held back.
    bool HoldsBack()
    {
        heldBack = heldBack || isOn;
        return isOn;
    }
    // Every change counts again. True when some did not, so that a reading must follow.
    bool End()
    {
        timer.stop();
        const bool held = std::exchange(heldBack, false);
        return std::exchange(isOn, false) && (watch.AllowChanges() || held);
    }

private:
    static constexpr int kLongest = 1000;  // milliseconds

    Watch& watch;
    QTimer timer;
    bool isOn = false;
    bool heldBack = false;
};

}  // namespace ui
