// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/new_folder_dialog.h"

#include "browser/clash_names.h"
#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/files/name_editor.h"
#include "ui/files/name_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui
{

namespace
{

constexpr int kLeastWidth = 90 * kGrid;
constexpr int kMostNumbers = 1000;

bool IsTaken(const std::string& folder, const std::string& name)
{
    return platform::Os().shell->FindEntry(browser::JoinPath(folder, name)).has_value();
}

std::string FreeName(const std::string& folder)
{
    const std::string wanted = NameBytes(Text(StringId::filesNewFolderName));
    std::string name = wanted;
    for (int number = 2; number < kMostNumbers && IsTaken(folder, name); ++number)
        name = browser::NumberedName(wanted, number, browser::NameKind::folder);
    return name;
}

}  // namespace

CNewFolderDialog::CNewFolderDialog(const std::string& folder, QWidget* parent)
    : QDialog(parent), parentFolder(folder), name(new QLineEdit(NameText(FreeName(folder)), this)),
      message(new CStaticEx(this)), create(nullptr)
{
    setObjectName(QStringLiteral("NewFolderDlg"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Text(StringId::filesAskFolderTitle));
    const std::string_view shown = browser::FileName(folder);
    auto* label =
        new CStaticEx(Text(StringId::filesAskFolderName, Shown(shown.empty() ? folder : shown)), this);
    label->setObjectName(QStringLiteral("text"));
    name->setObjectName(QStringLiteral("name"));
    message->setObjectName(QStringLiteral("message"));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(name);
    name->setAccessibleName(label->text());
    name->selectAll();
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    create = AddButton(*buttons, Text(StringId::filesCreate), QDialogButtonBox::AcceptRole, "ok");
    AddButton(*buttons, Text(StringId::filesCancel), QDialogButtonBox::RejectRole, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CNewFolderDialog::Choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(name, &QLineEdit::textChanged, this, &CNewFolderDialog::Check);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addWidget(label);
    column->addWidget(name);
    column->addWidget(message);
    column->addWidget(buttons);
    setMinimumWidth(kLeastWidth);
    Check();
}

void CNewFolderDialog::Check()
{
    const std::string wanted = NameBytes(name->text());
    QString reason = NameObjection(wanted);
    if (reason.isEmpty() && IsTaken(parentFolder, wanted))
        reason = Text(StringId::filesNameTaken, Shown(wanted));
    // An empty field says by itself what it lacks.
    message->setText(wanted.empty() ? QString() : reason);
    name->setAccessibleDescription(reason);
    create->setEnabled(reason.isEmpty());
}

void CNewFolderDialog::Choose()
{
    Q_EMIT Chosen(browser::JoinPath(parentFolder, NameBytes(name->text())));
    accept();
}

}  // namespace ui
