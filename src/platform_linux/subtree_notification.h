// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSubtreeNotification: folders made, removed and renamed in those folders of a file system that are
// followed.
#pragma once

#include "platform_linux/folder_notification.h"
#include "platform_linux/followed_folders.h"

namespace platform_linux
{

class CSubtreeNotification final : public CInotifyQueue
{
public:
    CSubtreeNotification(const std::string& root, std::shared_ptr<CFollowedFolders> followed);
    ~CSubtreeNotification() override;
    bool IsFollowing() const { return isFollowing; }
    int Descriptor() const override { return both.Get(); }

private:
    bool IsChange(int watch, std::uint32_t mask, const char* name) override;
    bool TakeOwn() override { return watches->Missed().Take(); }

    std::shared_ptr<CFollowedFolders> folders;
    std::shared_ptr<CSubtreeWatches> watches;
    CHandle both;  // the queue, and what was missed before the watches were there
    bool isFollowing = false;
};

}  // namespace platform_linux
