// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/clash_dialog.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace ui
{

namespace
{

QString FactsText(const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    if (!facts)
        return {};
    const QString time = TimeText(facts->lastWriteTime);
    return facts->isFolder ? time : Text(StringId::filesClashFacts, SizeText(facts->size), time);
}

QLabel* PlainLabel(const QString& text, const char* name, QWidget* parent)
{
    auto* label = new CStaticEx(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

CClashDialog::CClashDialog(const browser::Clash& clash, QWidget* parent)
    : QDialog(parent), forAll(new QCheckBox(Text(StringId::filesClashForAll), this))
{
    using enum browser::ClashAnswer;
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("ClashDlg"));
    forAll->setObjectName(QStringLiteral("for_all"));
    setWindowTitle(Text(StringId::filesClashTitle));
    const StringId question = clash.areFolders ? StringId::filesClashFolder : StringId::filesClashFile;
    const QString heading = Text(question, Shown(browser::FileName(clash.target)),
                                 Shown(browser::FileName(browser::FolderOf(clash.target))));
    auto* title = PlainLabel(heading, "text", this);
    QFont strong = title->font();
    strong.setWeight(QFont::DemiBold);
    title->setFont(strong);
    const QString there = Text(StringId::filesClashThere, FactsText(clash.target));
    const QString coming = Text(StringId::filesClashComing, FactsText(clash.source));
    setAccessibleDescription(heading + QLatin1Char('\n') + there + QLatin1Char('\n') + coming);

    auto* buttons = new QDialogButtonBox(this);
    if (clash.areFolders)
        AddChoice(*buttons, "merge", Text(StringId::filesClashMerge), merge)
            .setToolTip(Text(StringId::filesClashMergeTip));
    AddChoice(*buttons, "keep_both", Text(StringId::filesClashKeepBoth), keepBoth)
        .setToolTip(Text(StringId::filesClashKeepBothTip));
    AddChoice(*buttons, "replace", Text(StringId::filesClashReplace), replace)
        .setToolTip(Text(StringId::filesClashReplaceTip));
    AddChoice(*buttons, "skip", Text(StringId::filesClashSkip), skip);
    AddChoice(*buttons, "cancel", Text(StringId::filesCancel), cancel);
    for (QAbstractButton* button : buttons->buttons())
        button->setAccessibleDescription(button->toolTip());

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addWidget(title);
    column->addWidget(PlainLabel(there, "there", this));
    column->addWidget(PlainLabel(coming, "coming", this));
    column->addSpacing(kGrid);
    column->addWidget(forAll);
    column->addSpacing(kGrid);
    column->addWidget(buttons);
}

QPushButton& CClashDialog::AddChoice(QDialogButtonBox& buttons, const char* name, const QString& text,
                                     browser::ClashAnswer answer)
{
    // One role for all keeps them in this order on every desktop.
    CButtonEx* button = AddButton(buttons, text, QDialogButtonBox::ActionRole, name);
    button->setAutoDefault(true);
    button->setDefault(answer == browser::ClashAnswer::keepBoth);
    if (answer == browser::ClashAnswer::keepBoth)
        button->setFocus();
    connect(button, &QPushButton::clicked, this, [this, answer] { Choose(answer); });
    return *button;
}

void CClashDialog::Choose(browser::ClashAnswer answer)
{
    Q_EMIT Answered({answer, forAll->isChecked()});
    QDialog::reject();
}

}  // namespace ui
