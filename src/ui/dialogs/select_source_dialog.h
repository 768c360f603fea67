// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSelectSourceDialog: the scanner or camera that pictures are acquired from.
#pragma once

#include "app/picture_source.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include <optional>

namespace ui
{

class CSelectSourceDialog : public QDialog
{
    Q_OBJECT

public:
    // Looks for sources once it is made; until they are found it says so and can be cancelled.
    explicit CSelectSourceDialog(QWidget* parent);
    void accept() override;
    bool IsLooking() const { return looking; }
    QListWidget* Sources() const { return list; }

Q_SIGNALS:
    // The source manager cannot be opened. The dialog is closed by then.
    void Failed();

private:
    void ShowSources(std::optional<std::vector<platform::PictureSource>> found);

    std::vector<platform::PictureSource> sources;
    bool looking = true;
    QLabel* what;
    QProgressBar* busy;
    QListWidget* list;
    QPushButton* choose;
};

}  // namespace ui
