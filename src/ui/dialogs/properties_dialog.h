// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPropertiesDialog: what there is to know about the selected files, a tab for each kind of knowledge.
#pragma once

#include "ui/dialogs/property_page.h"

#include <QDialog>
#include <QTabWidget>

namespace ui
{

class CPropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    // At least one path.
    CPropertiesDialog(std::vector<std::string> paths, QWidget* parent);
    // A further tab, behind those that are there.
    void AddPage(CPropertyPage* page);

private:
    std::vector<std::string> shown;
    QTabWidget* tabs;
};

}  // namespace ui
