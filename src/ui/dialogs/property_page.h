// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPropertyPage: one tab of the properties dialog.
#pragma once

#include "ui/controls/panel.h"

#include <string>
#include <vector>

namespace ui
{

class CPropertyPage : public CPanel
{
    Q_OBJECT

public:
    using CPanel::CPanel;
    virtual QString Title() const = 0;
    // Called once, before the dialog is shown, with at least one path. Whatever takes long is read
    // afterwards, off the window's thread, and ends when the page goes.
    virtual void Show(const std::vector<std::string>& paths) = 0;
};

}  // namespace ui
