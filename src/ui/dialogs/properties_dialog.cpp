// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/properties_dialog.h"

#include "browser/file_names.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/dialogs/general_page.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace ui
{

CPropertiesDialog::CPropertiesDialog(std::vector<std::string> paths, QWidget* parent)
    : QDialog(parent), shown(std::move(paths)), tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("PropertiesDlg"));
    tabs->setObjectName(QStringLiteral("pages"));
    const QString what = shown.size() == 1
                             ? Shown(browser::FileName(shown.front()))
                             : Counted(StringId::propertiesSelected, static_cast<qint64>(shown.size()));
    setWindowTitle(Text(StringId::propertiesTitle, what));
    tabs->setAccessibleName(Text(StringId::propertiesPages));
    auto* buttons = new QDialogButtonBox(this);
    CButtonEx* close = AddButton(*buttons, QDialogButtonBox::Close, "close");
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3 * kGrid, 3 * kGrid, 3 * kGrid, 3 * kGrid);
    column->addWidget(tabs, 1);
    column->addWidget(buttons);
    AddPage(new CGeneralPage(tabs));
    resize(110 * kGrid, 90 * kGrid);
    close->setFocus();
}

void CPropertiesDialog::AddPage(CPropertyPage* page)
{
    tabs->addTab(page, page->Title());
    page->Show(shown);
}

}  // namespace ui
