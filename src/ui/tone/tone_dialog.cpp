// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tone/tone_dialog.h"

#include "browser/file_names.h"
#include "sound/tune_conversion.h"
#include "ui/background.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/tone/tone_text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTextOption>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

namespace
{

using RowState = app::CToneConversion::RowState;

constexpr int kIconSide = 16;
enum Column { fileColumn, targetColumn, sizeColumn, lengthColumn, noteColumn };

QString NameOf(const std::string& path)
{
    return Shielded(Shown(browser::FileName(path)));
}

StringId NoteOf(RowState state)
{
    switch (state) {
    case RowState::waiting:
        return StringId::toneLooking;
    case RowState::good:
        return StringId::toneNoteGood;
    case RowState::lossy:
        return StringId::toneNoteLossy;
    case RowState::tooLong:
        return StringId::toneNoteTooLong;
    case RowState::refused:
        return StringId::toneNoteRefused;
    }
    return StringId::none;
}

bool IsWarning(RowState state)
{
    return state == RowState::tooLong || state == RowState::refused;
}

// Length, notes and so on, each with its name in one piece.
QString ContentText(const app::ToneFacts& facts)
{
    QStringList parts;
    for (const auto& [name, value] : LinesOf(facts)) {
        QString part = Text(name) + QLatin1Char(' ') + Shielded(value);
        if (!value.isEmpty() && name != StringId::toneTitle)
            parts.append(part.replace(QLatin1Char(' '), QChar::Nbsp));
    }
    return parts.join(QStringLiteral("   "));
}

// Where texts begin in the window's direction, whatever their own letters.
Qt::Alignment OwnSide(const QWidget& widget)
{
    return (widget.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

QLabel* MakeText(QWidget* parent, const char* name)
{
    auto* label = new CStaticEx(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(OwnSide(*label));
    return label;
}

}  // namespace

CToneDialog::CToneDialog(std::vector<std::string> paths, QWidget* parent)
    : QDialog(parent), conversion(std::move(paths)), sign(MakeText(this, "sign")),
      summary(MakeText(this, "summary")), table(new QTreeWidget(this)), source(MakeText(this, "source")),
      target(MakeText(this, "target")), size(MakeText(this, "size")), room(new QProgressBar(this)),
      content(MakeText(this, "content")), losses(new QPlainTextEdit(this)),
      halve(new QCheckBox(Text(StringId::toneHalve), this))
{
    setObjectName(QStringLiteral("ToneDlg"));
    setWindowTitle(Text(StringId::toneConvertTitle));
    MakeParts();
    MakeTable();
    auto* buttons = new QDialogButtonBox(this);
    ok = AddButton(*buttons, Counted(StringId::toneConvert, 1), QDialogButtonBox::AcceptRole, "ok");
    ok->setDefault(true);
    AddButton(*buttons, QDialogButtonBox::Cancel, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CToneDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Arrange(buttons);
    Update();
    PlanNext();
}

void CToneDialog::MakeParts()
{
    QFont strong = summary->font();
    strong.setWeight(QFont::DemiBold);
    summary->setFont(strong);
    sign->setPixmap(
        IconPixmap(QStringLiteral("warning"), kIconSide, CTheme::Colours().text, devicePixelRatioF()));
    sign->setFixedWidth(kIconSide);
    room->setObjectName(QStringLiteral("room"));
    room->setRange(0, static_cast<int>(sound::kLongestRingTone));
    room->setTextVisible(false);
    room->setAccessibleName(Text(StringId::toneSize));
    losses->setObjectName(QStringLiteral("losses"));
    losses->setReadOnly(true);
    losses->setTabChangesFocus(true);
    losses->document()->setDefaultTextOption(QTextOption(OwnSide(*losses)));
    losses->setAccessibleName(Text(StringId::toneLossesName));
    halve->setObjectName(QStringLiteral("halve"));
    halve->setToolTip(Text(StringId::toneHalveTip));
    connect(halve, &QCheckBox::toggled, this, [this](bool on) {
        conversion.Halve(on);
        for (std::size_t row = 0; row < conversion.Count(); ++row)
            ShowRow(row);
        Update();
    });
}

void CToneDialog::MakeTable()
{
    table->setObjectName(QStringLiteral("files"));
    table->setAccessibleName(Text(StringId::toneTable));
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAllColumnsShowFocus(true);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setIconSize({kIconSide, kIconSide});
    QStringList headings;
    for (const StringId text : {StringId::toneFile, StringId::toneBecomes, StringId::toneSize,
                                StringId::toneLength, StringId::toneNote})
        headings.append(Text(text));
    table->setHeaderLabels(headings);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setSectionResizeMode(fileColumn, QHeaderView::Stretch);
    table->header()->setSectionResizeMode(targetColumn, QHeaderView::Stretch);
    table->header()->setStretchLastSection(false);
    for (std::size_t row = 0; row < conversion.Count(); ++row) {
        auto* item = new QTreeWidgetItem(table);
        item->setText(fileColumn, NameOf(conversion.Source(row)));
        item->setText(noteColumn, Text(StringId::toneLooking));
        item->setTextAlignment(sizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(lengthColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    table->setCurrentItem(table->topLevelItem(0));
    table->setVisible(conversion.Count() > 1);
    connect(table, &QTreeWidget::currentItemChanged, this, &CToneDialog::ShowCurrent);
}

void CToneDialog::AddLine(QGridLayout& grid, StringId name, QLabel* value)
{
    const int row = grid.rowCount();
    auto* label = new CStaticEx(Text(name), this);
    grid.addWidget(label, row, 0, Qt::AlignTop);
    grid.addWidget(value, row, 1);
    value->setAccessibleName(Text(name));
    names[value] = label;
}

// A line without a value is not shown.
void CToneDialog::SetLine(QLabel* value, const QString& text)
{
    value->setText(text);
    value->setVisible(!text.isEmpty());
    names[value]->setVisible(!text.isEmpty());
}

void CToneDialog::Arrange(QDialogButtonBox* buttons)
{
    auto* head = new QHBoxLayout;
    head->setSpacing(2 * kGrid);
    head->addWidget(sign, 0, Qt::AlignTop);
    head->addWidget(summary, 1);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(3 * kGrid);
    grid->setVerticalSpacing(kGrid);
    grid->setColumnStretch(1, 1);
    AddLine(*grid, StringId::toneSource, source);
    AddLine(*grid, StringId::toneTarget, target);
    AddLine(*grid, StringId::toneTargetSize, size);
    grid->addWidget(room, grid->rowCount(), 1);
    AddLine(*grid, StringId::toneForm, content);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(3 * kGrid);
    column->addLayout(head);
    column->addWidget(table, 2);
    column->addLayout(grid);
    column->addWidget(losses, 1);
    column->addWidget(halve);
    column->addWidget(buttons);
    const bool isOne = conversion.Count() == 1;
    resize((isOne ? 120 : 170) * kGrid, (isOne ? 96 : 140) * kGrid);
}

void CToneDialog::PlanNext()
{
    const std::string* path = conversion.NextToPlan();
    if (!path)
        return;
    InBackground(
        this, [path = *path, taken = conversion.Taken()] { return app::PlanTone(path, taken); },
        [this](app::TonePlan plan) {
            const std::size_t row = conversion.Planned();
            conversion.Take(std::move(plan));
            ShowRow(row);
            Update();
            PlanNext();
        });
}

std::size_t CToneDialog::CurrentRow() const
{
    return static_cast<std::size_t>(std::max(table->indexOfTopLevelItem(table->currentItem()), 0));
}

void CToneDialog::Update()
{
    bool isWarning = false;
    for (std::size_t row = 0; row < conversion.Count(); ++row)
        isWarning = isWarning || IsWarning(conversion.State(row));
    sign->setVisible(isWarning);
    summary->setText(CountText(conversion.Summary()));
    ok->setText(Counted(conversion.ButtonText(), static_cast<qint64>(conversion.Convertible())));
    ok->setEnabled(conversion.CanConvert());
    ShowHalving();
    ShowCurrent();
}

void CToneDialog::ShowRow(std::size_t row)
{
    QTreeWidgetItem& item = *table->topLevelItem(static_cast<int>(row));
    const RowState state = conversion.State(row);
    item.setText(noteColumn, Text(NoteOf(state)));
    item.setIcon(noteColumn, IsWarning(state) ? ThemedIcon(QStringLiteral("warning")) : QIcon());
    const app::ToneOutcome* outcome = conversion.Outcome(row);
    if (!outcome)
        return;
    item.setText(targetColumn, NameOf(conversion.Plan(row)->target));
    item.setText(sizeColumn, SizeText(outcome->size));
    item.setText(lengthColumn, DurationText(outcome->facts.milliseconds));
}

void CToneDialog::ShowCurrent()
{
    const std::size_t row = CurrentRow();
    const app::TonePlan* plan = conversion.Plan(row);
    const app::ToneOutcome* outcome = conversion.Outcome(row);
    // With several files the list has the names.
    const bool isOne = conversion.Count() == 1;
    SetLine(source, isOne ? NameOf(conversion.Source(row)) : QString());
    SetLine(target, isOne && outcome ? NameOf(plan->target) : QString());
    SetLine(size, outcome ? BytesOfCap(outcome->size) : QString());
    room->setVisible(outcome != nullptr);
    room->setValue(outcome ? static_cast<int>(std::min(outcome->size, sound::kLongestRingTone)) : 0);
    SetLine(content, outcome ? ContentText(outcome->facts) : QString());
    QStringList lines;
    if (plan && plan->problem)
        lines.append(ProblemText(plan->problem, plan->facts));
    for (const app::ToneLoss& loss : conversion.Losses(row))
        lines.append(LossText(loss));
    if (outcome && lines.isEmpty())
        lines.append(Text(StringId::toneGood));
    losses->setPlainText(plan ? lines.join(QLatin1Char('\n')) : Text(StringId::toneLooking));
}

void CToneDialog::ShowHalving()
{
    halve->setVisible(conversion.OffersHalving());
    const app::TonePlan* plan = conversion.Count() == 1 ? conversion.Plan(0) : nullptr;
    if (plan && plan->halved)
        halve->setText(
            Text(StringId::toneHalveSizes, SizeText(plan->halved->size), SizeText(plan->whole.size)));
}

void CToneDialog::accept()
{
    if (!conversion.CanConvert())
        return;
    Q_EMIT Chosen(conversion.Orders());
    QDialog::accept();
}

}  // namespace ui
