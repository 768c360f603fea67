// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/rename_dialog.h"

#include "browser/file_names.h"
#include "ui/background.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/message_box.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/files/name_text.h"
#include "ui/theme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace ui
{

namespace
{

constexpr int kPatience = 300;  // milliseconds before the dialog says that it is looking
constexpr int kDigitsWidth = 16 * kGrid;
constexpr int kIconSide = 16;

// Digits of any script as those of ASCII.
std::string PlainDigits(const QString& text)
{
    QString plain = text.trimmed();
    for (QChar& letter : plain) {
        if (letter.isDigit())
            letter = QLatin1Char(static_cast<char>('0' + letter.digitValue()));
    }
    return plain.toStdString();
}

}  // namespace

CRenameDialog::CRenameDialog(std::vector<std::string> paths, photo::CRenameFields start, QWidget* parent)
    : QDialog(parent), files(std::make_shared<const std::vector<std::string>>(std::move(paths))),
      folder(browser::FolderOf(files->front())), fields(std::move(start)),
      prefix(new QLineEdit(NameText(fields.prefix), this)),
      digits(new QLineEdit(QString::fromStdString(fields.digits), this)),
      prefixText(new CStaticEx(Text(StringId::renamePrefix), this)),
      digitsText(new CStaticEx(Text(StringId::renameDigits), this)),
      range(new CStaticEx(Text(StringId::renameDigitsRange), this)), preview(new CStaticEx(this)),
      counts(new CStaticEx(this)), table(new QTreeView(this)), model(new CRenamePlanModel(this)),
      onlyTaken(new QCheckBox(Text(StringId::renameOnlyTaken), this))
{
    setObjectName(QStringLiteral("RenameDlg"));
    setWindowTitle(Text(StringId::renameTitle));
    NameParts();
    BuildTable();
    Arrange(MakeButtons());
    connect(prefix, &QLineEdit::textChanged, this, &CRenameDialog::OnEdited);
    connect(digits, &QLineEdit::textChanged, this, &CRenameDialog::OnEdited);
    connect(onlyTaken, &QCheckBox::toggled, model, &CRenamePlanModel::ShowOnlyTaken);
    patience.setSingleShot(true);
    patience.setInterval(kPatience);
    connect(&patience, &QTimer::timeout, this, [this] { counts->setText(Text(StringId::renameLooking)); });
    prefix->setFocus();
    prefix->selectAll();
    OnEdited();
}

void CRenameDialog::NameParts()
{
    const std::pair<QWidget*, const char*> parts[] = {
        {prefixText, "text_prefix"}, {prefix, "prefix"}, {digitsText, "text_digits"},
        {digits, "digits"},          {range, "range"},   {preview, "preview"},
        {counts, "counts"},          {table, "plan"},    {onlyTaken, "only_taken"},
    };
    for (const auto& [part, name] : parts)
        part->setObjectName(QString::fromLatin1(name));
    const std::tuple<QLineEdit*, QLabel*, StringId> lines[] = {
        {prefix, prefixText, StringId::renamePrefixTip}, {digits, digitsText, StringId::renameDigitsTip}};
    for (const auto& [field, text, tip] : lines) {
        text->setBuddy(field);
        field->setToolTip(Text(tip));
        field->setAccessibleName(text->text().remove(QLatin1Char('&')));
    }
    digits->setAccessibleDescription(Text(StringId::renameDigitsRange));
    digits->setInputMethodHints(Qt::ImhDigitsOnly);
    digits->setFixedWidth(kDigitsWidth);
    range->setForegroundRole(QPalette::PlaceholderText);
    preview->setTextFormat(Qt::PlainText);
    preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    counts->setTextFormat(Qt::PlainText);
    counts->setWordWrap(true);
}

void CRenameDialog::BuildTable()
{
    table->setModel(model);
    table->setAccessibleName(Text(StringId::renamePlan));
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setItemsExpandable(false);
    table->setAllColumnsShowFocus(true);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setIconSize({kIconSide, kIconSide});
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setTabKeyNavigation(false);
    QHeaderView& header = *table->header();
    header.setStretchLastSection(false);
    header.setHighlightSections(false);
    header.setSectionResizeMode(QHeaderView::Stretch);
    header.setSectionResizeMode(CRenamePlanModel::noteColumn, QHeaderView::Interactive);
}

QDialogButtonBox* CRenameDialog::MakeButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    ok = AddButton(*buttons, Counted(StringId::renameDo, static_cast<qint64>(files->size())),
                   QDialogButtonBox::AcceptRole, "ok");
    ok->setDefault(true);
    AddButton(*buttons, QDialogButtonBox::Cancel, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CRenameDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void CRenameDialog::Arrange(QDialogButtonBox* buttons)
{
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * kGrid);
    grid->setColumnStretch(2, 1);
    grid->addWidget(prefixText, 0, 0);
    grid->addWidget(prefix, 0, 1, 1, 2);
    grid->addWidget(digitsText, 1, 0);
    grid->addWidget(digits, 1, 1);
    grid->addWidget(range, 1, 2);
    grid->addWidget(preview, 2, 1, 1, 2);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addLayout(grid);
    column->addSpacing(kGrid);
    column->addWidget(counts);
    column->addWidget(table, 1);
    column->addWidget(onlyTaken);
    column->addWidget(buttons);
    resize(160 * kGrid, 120 * kGrid);
}

void CRenameDialog::OnEdited()
{
    fields.prefix = NameBytes(prefix->text());
    fields.digits = PlainDigits(digits->text());
    acceptWhenPlanned = false;
    ShowPreview();
    Plan();
}

void CRenameDialog::ShowPreview()
{
    const QString sample = Text(StringId::renameSample, Shown(fields.Preview()));
    preview->setText(fontMetrics().elidedText(sample, Qt::ElideMiddle, preview->width()));
    preview->setAccessibleName(sample);
}

void CRenameDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    ShowPreview();
}

photo::RenameObjection CRenameDialog::Objection() const
{
    photo::CRenameFields tried = fields;
    return tried.Check(folder);
}

std::string CRenameDialog::Wish() const
{
    const photo::RenameObjection objection = Objection();
    const bool usable =
        objection == photo::RenameObjection::none || objection == photo::RenameObjection::badDigits;
    return usable ? fields.Pattern() : std::string();
}

void CRenameDialog::Plan()
{
    if (busy)
        return;
    busy = true;
    patience.start();
    const std::string pattern = Wish();
    InBackground(
        this, [paths = files, pattern] { return photo::PlanBatchRename(*paths, pattern); },
        [this, pattern](std::vector<photo::PlannedRename> plan) { OnPlanned(pattern, std::move(plan)); });
}

void CRenameDialog::OnPlanned(const std::string& pattern, std::vector<photo::PlannedRename> plan)
{
    busy = false;
    if (pattern != Wish())
        return Plan();
    patience.stop();
    planned = pattern;
    model->Show(std::move(plan));
    ShowCounts();
    if (acceptWhenPlanned)
        Finish();
}

void CRenameDialog::ShowCounts()
{
    const auto all = static_cast<int>(model->Plan().size());
    const int renames = all - model->Kept();
    QString text = Counted(StringId::renameFiles, all);
    if (model->Clashes() > 0)
        text = Text(StringId::renameAnd).arg(text, Counted(StringId::renameClashes, model->Clashes()));
    if (model->Kept() > 0)
        text = Text(StringId::renameAnd).arg(text, Counted(StringId::renameKept, model->Kept()));
    // An objection leaves no plan. OK tells it again, in a message.
    const photo::RenameObjection objection = Objection();
    if (objection == photo::RenameObjection::badCharacter)
        text = Text(StringId::renameBadCharacters);
    else if (objection == photo::RenameObjection::tooLong)
        text = Text(StringId::renameTooLong);
    counts->setText(text);
    prefix->setAccessibleDescription(all == 0 ? text : QString());
    if (all > 0)
        ok->setText(Counted(StringId::renameDo, renames));
    ok->setEnabled(all == 0 || renames > 0);
    onlyTaken->setVisible(model->Clashes() > 0 || onlyTaken->isChecked());
    ShowRoomForNotes();
}

void CRenameDialog::ShowRoomForNotes()
{
    int width = 0;
    for (const StringId note : {StringId::renameTaken, StringId::renameKeeps, StringId::renameNote})
        width = std::max(width, fontMetrics().horizontalAdvance(Text(note)));
    table->header()->resizeSection(CRenamePlanModel::noteColumn, width + kIconSide + 10 * kGrid);
    table->setColumnHidden(CRenamePlanModel::noteColumn, model->Clashes() + model->Kept() == 0);
}

void CRenameDialog::accept()
{
    switch (fields.Check(folder)) {
    case photo::RenameObjection::badCharacter:
        return Refuse(StringId::renameBadCharacters);
    case photo::RenameObjection::tooLong:
        return Refuse(StringId::renameTooLong);
    case photo::RenameObjection::badDigits:
        digits->setText(QString::fromStdString(fields.digits));
        QApplication::beep();
        digits->setFocus();
        digits->selectAll();
        return;
    case photo::RenameObjection::none:
        break;
    }
    acceptWhenPlanned = IsPlanning();
    if (!acceptWhenPlanned)
        Finish();
}

void CRenameDialog::Refuse(StringId reason)
{
    auto* box = new CMessageBox(CMessageBox::Warning, windowTitle(), Text(reason), this);
    box->Add(CMessageBox::Ok);
    box->Open();
    prefix->setFocus();
    prefix->selectAll();
}

void CRenameDialog::Finish()
{
    if (static_cast<std::size_t>(model->Kept()) == model->Plan().size())
        return;
    Q_EMIT Chosen(model->Plan(), fields);
    QDialog::accept();
}

}  // namespace ui
