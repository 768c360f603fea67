// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CListLayout: carries a list's layout from the settings file to the list, and back some seconds after it was
// changed, so that a program that is killed loses little; and at the end.
#pragma once

#include "browser/list_settings.h"

#include <QObject>
#include <QTimer>

namespace ui
{

class CIEShellListCtrl;

class CListLayout : public QObject
{
    Q_OBJECT

public:
    // An empty file: nothing is kept.
    CListLayout(CIEShellListCtrl& list, const std::string& settingsFile);

    void Load();
    void Save();

private:
    void TakeHeadings();
    std::string PresentHeadings() const;
    void Collect();

    CIEShellListCtrl& ctrl;
    browser::CListSettings settings;
    std::vector<std::string> headings;  // of every column, empty for a built-in one
    QTimer saveTimer;
};

}  // namespace ui
