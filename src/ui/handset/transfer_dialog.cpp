// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/transfer_dialog.h"

#include "ui/controls/dialog_buttons.h"
#include "ui/controls/message_box.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

namespace
{

constexpr int kWholeFile = 100;

QLabel* MakeLine(QWidget* parent, const char* name)
{
    auto* label = new CStaticEx(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QProgressBar* MakeBar(QWidget* parent, StringId name)
{
    auto* bar = new QProgressBar(parent);
    bar->setRange(0, kWholeFile);
    bar->setValue(0);
    bar->setTextVisible(false);
    bar->setAccessibleName(Text(name));
    return bar;
}

}  // namespace

CTransferDialog::CTransferDialog(const QString& title, Transfer way, const char* statusName, QWidget* parent)
    : QDialog(parent), picture(new CTransferPicture(way, this)), status(MakeLine(this, statusName)),
      why(MakeLine(this, "why")), fileBar(MakeBar(this, StringId::handsetProgressFile)),
      wholeBar(MakeBar(this, StringId::handsetProgressAll)), counter(MakeLine(this, "filecount")),
      transfer(new CTransferThread(this))
{
    setWindowTitle(title);
    MakeParts();
    Connect();
}

void CTransferDialog::MakeParts()
{
    fileBar->setObjectName(QStringLiteral("progress"));
    wholeBar->setObjectName(QStringLiteral("whole"));
    status->setWordWrap(true);
    why->setWordWrap(true);
    why->hide();
    picture->setObjectName(QStringLiteral("play"));
    why->setForegroundRole(QPalette::PlaceholderText);
    why->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void CTransferDialog::Arrange(QLayout* head)
{
    auto* buttons = new QDialogButtonBox(this);
    start = AddButton(*buttons, Text(StringId::handsetStart), QDialogButtonBox::ActionRole, "start");
    stop = AddButton(*buttons, Text(StringId::handsetStop), QDialogButtonBox::ActionRole, "stop");
    close = AddButton(*buttons, Text(StringId::handsetClose), QDialogButtonBox::RejectRole, "close");
    start->setDefault(true);
    connect(start, &QPushButton::clicked, this, &CTransferDialog::Start);
    connect(stop, &QPushButton::clicked, this, &CTransferDialog::Stop);
    connect(close, &QPushButton::clicked, this, &CTransferDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addWidget(picture);
    column->addLayout(head, 1);
    for (QWidget* part : std::initializer_list<QWidget*>{status, why, fileBar, wholeBar, counter})
        column->addWidget(part);
    column->addSpacing(kGrid);
    column->addWidget(buttons);
    ShowBars(false);
    UpdateButtons();
}

void CTransferDialog::Connect()
{
    connect(transfer, &CTransferThread::Status, this, [this](StringId text, const std::string& reason) {
        hasHandset = false;
        SetStatus(Text(text), Shown(reason));
    });
    connect(transfer, &CTransferThread::Message, this, &CTransferDialog::OnMessage);
    connect(transfer, &CTransferThread::Counter, this, &CTransferDialog::OnCounter);
    connect(transfer, &CTransferThread::Percent, this, &CTransferDialog::OnPercent);
    connect(transfer, &CTransferThread::Ended, this, &CTransferDialog::OnEnded);
    connect(transfer, &CTransferThread::Began, this, [this](const std::string& model) {
        if (isLooking)
            SetStatus(model.empty() ? Text(StringId::handsetReady)
                                    : Text(StringId::handsetReadyModel, Shown(model)));
    });
    connect(transfer, &CTransferThread::FileEnded, this, [this](const handset::TransferredFile& file) {
        arrived += file.result == platform::kHandsetDone ? 1 : 0;
        OnFile(present, file);
    });
}

void CTransferDialog::SetStatus(const QString& text, const QString& reason)
{
    status->setText(text);
    why->setText(reason);
    why->setVisible(!reason.isEmpty());
    if (!layout())
        return;
    // The text may need more lines than the one before it.
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

void CTransferDialog::ShowBars(bool shown)
{
    fileBar->setVisible(shown);
    wholeBar->setVisible(shown && total > 1);
    counter->setVisible(shown);
}

void CTransferDialog::Look(unsigned port)
{
    if (port == 0) {
        hasHandset = false;
        SetStatus(Text(StringId::handsetNoHandset), Text(StringId::handsetChoosePort));
        return UpdateButtons();
    }
    isLooking = true;
    SetStatus(Text(StringId::handsetLooking));
    transfer->Run(std::make_unique<handset::CHandsetLook>(port, transfer->Host()));
    UpdateButtons();
}

void CTransferDialog::UpdateButtons()
{
    start->setEnabled(!isRunning && !isLooking && hasHandset && CanStart());
    stop->setEnabled(isRunning && !isStopping);
    close->setEnabled(!isRunning);
}

void CTransferDialog::Start()
{
    isRunning = true;
    total = 0;
    arrived = 0;
    counter->clear();
    fileBar->setValue(0);
    SetStatus(BeginText());
    SetRunning(true);
    picture->SetPlaying(true);
    UpdateButtons();
    stop->setFocus();
    transfer->Run(NewRun(transfer->Host()));
}

void CTransferDialog::Stop()
{
    isStopping = true;
    SetStatus(Text(StringId::handsetStopping));
    UpdateButtons();
    transfer->Cancel();
}

void CTransferDialog::reject()
{
    if (isRunning && !isStopping)
        return Stop();
    if (isRunning)
        return;
    // The line is let go of before another dialog may ask for it.
    isClosing = isLooking;
    if (!isLooking)
        return QDialog::reject();
    transfer->Cancel();
}

void CTransferDialog::OnCounter(int number, int count, platform::FileDataType type)
{
    present = number;
    total = count;
    ShowBars(true);
    counter->setText(Text(StringId::handsetCounter, QString::number(number), QString::number(count)));
    wholeBar->setRange(0, count * kWholeFile);
    OnPercent(0);
    if (!isStopping)
        SetStatus(FileText(number, type));
}

void CTransferDialog::OnPercent(int percent)
{
    fileBar->setValue(percent);
    wholeBar->setValue((std::max(present, 1) - 1) * kWholeFile + percent);
}

void CTransferDialog::OnMessage(StringId text, const std::string& reason)
{
    // The news that the transfer was given up outlives the dialog.
    QWidget* owner = text == StringId::handsetCancelled ? parentWidget() : this;
    auto* box = new CMessageBox(QMessageBox::Information, windowTitle(), Text(text), owner);
    box->setInformativeText(Shown(reason));
    box->Add(QMessageBox::Ok);
    box->Open();
    SetStatus(Text(text), Shown(reason));
}

void CTransferDialog::OnEnded(bool began, handset::TransferEnd end)
{
    if (isLooking) {
        isLooking = false;
        UpdateButtons();
        if (isClosing)
            QDialog::reject();
        return;
    }
    isRunning = false;
    isStopping = false;
    SetRunning(false);
    picture->SetPlaying(false);
    UpdateButtons();
    if (!began)
        ShowBars(false);
    Q_EMIT Transferred(arrived);
    if (end == handset::TransferEnd::cancelled)
        return QDialog::reject();
    if (end == handset::TransferEnd::finished)
        SetStatus(EndText(arrived));
    close->setFocus();
}

}  // namespace ui
