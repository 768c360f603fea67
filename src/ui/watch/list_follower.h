// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CListFollower: keeps the file list current with the folder on show.
//
// It has the list's watcher thread and the window to which that talks. The list tells when it begins and ends
// to read, and is told when to read again.
#pragma once

#include "browser/list_watch.h"
#include "platform/types.h"
#include "ui/watch/message_port.h"
#include "ui/watch/own_change.h"
#include "ui/watch/paced_refresh.h"

namespace ui
{

class CListFollower : public QObject
{
    Q_OBJECT

public:
    CListFollower();
    ~CListFollower() override;

    // The list begins to read that folder, for the first time or again.
    void Begin(const std::string& path);
    void End();
    // The list must not be disturbed now: RefreshDue comes again in a moment.
    void Postpone() { refresh.Postpone(); }
    // The next changes to the folder are the list's own doing, and it reads anew by itself (see COwnChange).
    void SwallowNextChange() { ownChange.Begin(); }
    // Whether changes in the folder on show will go unnoticed.
    bool IsLost() const { return isLost; }

Q_SIGNALS:
    void RefreshDue();
    // IsLost has changed.
    void LostChanged();

private:
    int OnMessage(std::uint32_t message, std::string& text);
    void OnFollowing();
    bool MayChange() const;

    std::string folder;
    platform::FileTime folderTime = 0;  // when the list began to read it
    bool isLost = false;
    CPacedRefresh refresh;
    CMessagePort port;
    COwnChange<browser::CListWatch> ownChange{watch, refresh};
    browser::CListWatch watch;  // goes first
};

}  // namespace ui
