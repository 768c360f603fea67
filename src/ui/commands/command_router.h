// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCommandRouter: which command is carried out by whom.
//
// Each group of commands registers its own when the frame is made; one command has one owner. What an action
// refers to must outlive the router or be the frame's own.
#pragma once

#include "app/commands.h"

#include <functional>
#include <map>

namespace ui
{

class CCommandRouter
{
public:
    using Work = std::function<void()>;

    // A command that is registered again goes to the latest owner.
    void On(app::CommandId id, Work work) { works[id] = std::move(work); }
    bool Has(app::CommandId id) const { return works.contains(id); }
    // False when nobody carries the command out.
    bool Run(app::CommandId id) const
    {
        const auto known = works.find(id);
        if (known == works.end())
            return false;
        known->second();
        return true;
    }

private:
    std::map<app::CommandId, Work> works;
};

}  // namespace ui
