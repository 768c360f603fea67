// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/clash_dialog.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
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

QLabel* PlainLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
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
    setWindowTitle(Text(StringId::filesClashTitle));
    const StringId question = clash.areFolders ? StringId::filesClashFolder : StringId::filesClashFile;
    const QString heading = Text(question, Shown(browser::FileName(clash.target)),
                                 Shown(browser::FileName(browser::FolderOf(clash.target))));
    auto* title = PlainLabel(heading, this);
    QFont strong = title->font();
    strong.setWeight(QFont::DemiBold);
    title->setFont(strong);
    const QString there = Text(StringId::filesClashThere, FactsText(clash.target));
    const QString coming = Text(StringId::filesClashComing, FactsText(clash.source));
    setAccessibleDescription(heading + QLatin1Char('\n') + there + QLatin1Char('\n') + coming);

    auto* buttons = new QDialogButtonBox(this);
    if (clash.areFolders)
        AddChoice(*buttons, Text(StringId::filesClashMerge), Text(StringId::filesClashMergeTip), merge);
    AddChoice(*buttons, Text(StringId::filesClashKeepBoth), Text(StringId::filesClashKeepBothTip), keepBoth);
    AddChoice(*buttons, Text(StringId::filesClashReplace), Text(StringId::filesClashReplaceTip), replace);
    AddChoice(*buttons, Text(StringId::filesClashSkip), {}, skip);
    AddChoice(*buttons, Text(StringId::filesCancel), {}, cancel);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addWidget(title);
    column->addWidget(PlainLabel(there, this));
    column->addWidget(PlainLabel(coming, this));
    column->addSpacing(kGrid);
    column->addWidget(forAll);
    column->addSpacing(kGrid);
    column->addWidget(buttons);
}

void CClashDialog::AddChoice(QDialogButtonBox& buttons, const QString& text, const QString& tip,
                             browser::ClashAnswer answer)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QStringLiteral("answer%1").arg(static_cast<int>(answer)));
    button->setToolTip(tip);
    button->setAccessibleDescription(tip);
    button->setAutoDefault(true);
    button->setDefault(answer == browser::ClashAnswer::keepBoth);
    if (answer == browser::ClashAnswer::keepBoth)
        button->setFocus();
    // One role for all keeps them in this order on every desktop.
    buttons.addButton(button, QDialogButtonBox::ActionRole);
    connect(button, &QPushButton::clicked, this, [this, answer] { Choose(answer); });
}

void CClashDialog::Choose(browser::ClashAnswer answer)
{
    Q_EMIT Answered({answer, forAll->isChecked()});
    QDialog::reject();
}

}  // namespace ui
