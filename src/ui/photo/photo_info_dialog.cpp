// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/photo_info_dialog.h"

#include "browser/file_names.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace ui
{

CPhotoInfoDialog::CPhotoInfoDialog(PhotoQuestion question, CFileActions& jobs, QWidget* parent)
    : QDialog(parent), view(new CPhotoInfoView(jobs, this))
{
    setObjectName(QStringLiteral("PhotoInfoDlg"));
    const std::vector<std::string>& paths = question.paths;
    const QString what = paths.size() == 1
                             ? Shown(browser::FileName(paths.front()))
                             : Counted(StringId::propertiesSelected, static_cast<qint64>(paths.size()));
    setWindowTitle(Text(StringId::infoTitle, what));
    auto* buttons = new QDialogButtonBox(this);
    AddButton(*buttons, QDialogButtonBox::Ok, "ok")->setDefault(true);
    AddButton(*buttons, QDialogButtonBox::Cancel, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CPhotoInfoDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3 * kGrid, 3 * kGrid, 3 * kGrid, 3 * kGrid);
    column->addWidget(view, 1);
    column->addWidget(buttons);
    view->Show(std::move(question));
    resize(110 * kGrid, 100 * kGrid);
}

void CPhotoInfoDialog::accept()
{
    if (view->Store())
        QDialog::accept();
}

}  // namespace ui
