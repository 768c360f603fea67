// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// COptionsDialog: what happens to the photos that a camera copy leaves behind, and the handset's port.
//
// The list holds all 255 ports in order; at first only those with something behind them are in view. OK
// writes both settings in the files at once.
#pragma once

#include "app/port_list.h"
#include "app/settings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace ui
{

class COptionsDialog : public QDialog
{
    Q_OBJECT

public:
    COptionsDialog(std::string iniFolder, QWidget* parent);

    // The position in the list of ports; -1 for none.
    int Port() const { return ports->currentRow(); }
    QListWidget* Ports() const { return ports; }
    void accept() override;

private:
    QWidget* MakeCameraGroup();
    QWidget* MakePortGroup();
    void ShowPorts(std::vector<app::PortEntry> entries);
    void Filter();
    QString PortText(const app::PortEntry& entry) const;

    std::string programFolder;
    app::OptionValues values;
    std::vector<app::PortEntry> shown;
    QButtonGroup* leftPhotos;
    QLineEdit* search;
    QCheckBox* onlyPresent;
    QListWidget* ports;
    QLabel* portHint;
};

}  // namespace ui
