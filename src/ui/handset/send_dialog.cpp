// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/send_dialog.h"

#include "browser/file_names.h"
#include "handset/handset_send.h"
#include "ui/background.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QVBoxLayout>

namespace ui
{

namespace
{

constexpr int kSignSide = 16;

}  // namespace

CSendDialog::CSendDialog(std::vector<std::string> paths, unsigned portNumber, QWidget* parent)
    : CTransferDialog(Text(StringId::handsetSendTitle), Transfer::pcToPhone, "filename", parent),
      port(portNumber), sign(new CStaticEx(this)), summary(new CStaticEx(this)),
      table(new CSendTable(std::move(paths), this))
{
    setObjectName(QStringLiteral("download2M"));
    QFont strong = summary->font();
    strong.setWeight(QFont::DemiBold);
    summary->setFont(strong);
    summary->setObjectName(QStringLiteral("summary"));
    sign->setPixmap(
        IconPixmap(QStringLiteral("warning"), kSignSide, CTheme::Colours().text, devicePixelRatioF()));
    connect(table, &CSendTable::ChoiceChanged, this, &CSendDialog::ShowSummary);
    auto* head = new QHBoxLayout;
    head->setSpacing(2 * kGrid);
    head->addWidget(sign);
    head->addWidget(summary, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(2 * kGrid);
    column->addLayout(head);
    column->addWidget(table, 1);
    Arrange(column);
    resize(220 * kGrid, 116 * kGrid);
    ShowSummary();
    Look(port);
    PlanNext(std::make_shared<handset::CHandsetPreparation>());
}

void CSendDialog::PlanNext(const std::shared_ptr<handset::CHandsetPreparation>& preparation)
{
    if (!IsPlanning())
        return;
    InBackground(
        this, [path = table->Path(table->Planned()), preparation] { return PlanSending(path, *preparation); },
        [this, preparation](handset::SendPlan plan) {
            table->Take(std::move(plan));
            ShowSummary();
            PlanNext(preparation);
        });
}

void CSendDialog::ShowSummary()
{
    const std::size_t chosen = IsPlanning() ? 0 : table->Chosen().size();
    if (IsPlanning())
        summary->setText(
            Counted(StringId::handsetPlanning, static_cast<qint64>(table->Count() - table->Planned())));
    else if (chosen == 0)
        summary->setText(Text(StringId::handsetNoneToSend));
    else
        summary->setText(Counted(StringId::handsetToSend, static_cast<qint64>(chosen)) + QLatin1Char(' ') +
                         Text(StringId::handsetInAll, SizeText(table->ChosenBytes())));
    sign->setVisible(table->HasWarnings());
    UpdateButtons();
}

bool CSendDialog::CanStart() const
{
    return !IsPlanning() && !table->Chosen().empty();
}

std::unique_ptr<handset::CTransferRun> CSendDialog::NewRun(handset::CTransferHost& host)
{
    return std::make_unique<handset::CHandsetSend>(table->Chosen(), port, host);
}

QString CSendDialog::BeginText() const
{
    return Text(StringId::handsetLooking);
}

QString CSendDialog::FileText(int number, platform::FileDataType) const
{
    table->ShowUnderWay(number);
    return Text(StringId::handsetSending, Shown(browser::FileName(table->RunPath(number))));
}

QString CSendDialog::EndText(int count) const
{
    return Counted(StringId::handsetSent, count);
}

void CSendDialog::SetRunning(bool running)
{
    if (running)
        table->BeginRun();
    else
        table->EndRun();
}

void CSendDialog::OnFile(int number, const handset::TransferredFile& file)
{
    table->ShowEnd(number, file);
}

}  // namespace ui
