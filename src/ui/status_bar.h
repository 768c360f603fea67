// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CStatusBar: how many files, what is selected, and how many thumbnails are still to be made.
#pragma once

#include "ui/ie_shell_list_ctrl.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace ui
{

class CStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit CStatusBar(QWidget* parent = nullptr);
    void ShowFiles(CIEShellListCtrl& ctrl);
    void ShowThumbnails(const CIEShellListCtrl& ctrl);
    QString FilesText() const { return files->text(); }
    QString SelectionText() const { return selection->text(); }
    // Empty while changes in the folder on show are followed.
    QString NotFollowedText() const { return notFollowed->text(); }
    QString ThumbnailsText() const { return thumbnailsLeft->text(); }

private:
    QLabel* files;
    QLabel* selection;
    QLabel* notFollowed;
    QLabel* thumbnailsLeft;
    QProgressBar* progress;
    int most = 0;
};

}  // namespace ui
