// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPhotoInfoDialog: the photo information in a window of its own. OK stores what was changed; a name that
// cannot be given keeps the window open.
#pragma once

#include "ui/photo/photo_info_view.h"

#include <QDialog>

namespace ui
{

class CPhotoInfoDialog : public QDialog
{
    Q_OBJECT

public:
    // At least one path. `jobs` must outlive the object.
    CPhotoInfoDialog(PhotoQuestion question, CFileActions& jobs, QWidget* parent);
    CPhotoInfoView* View() const { return view; }

    void accept() override;

private:
    CPhotoInfoView* view;
};

}  // namespace ui
