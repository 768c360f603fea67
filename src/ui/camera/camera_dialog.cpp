// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/camera/camera_dialog.h"

#include "platform/services.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/message_box.h"
#include "ui/controls/panel.h"
#include "ui/controls/transfer_picture.h"
#include "ui/display_text.h"
#include "ui/path_label.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QLocale>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

CCameraDialog::CCameraDialog(handset::CameraCopyPlan plan, QWidget* parent)
    : QDialog(parent), picture(new CTransferPicture(Transfer::cameraToPc, this)), where(new CPathLabel(this)),
      bar(new QProgressBar(this)), text(new CStaticEx(Text(StringId::cameraLooking), this)), stop(nullptr),
      copy(*platform::Os().cameraStore, std::move(plan), *this)
{
    setObjectName(QStringLiteral("upload"));
    setWindowTitle(Text(StringId::cameraTitle));
    Build();
    thread = std::thread([this] { Work(); });
}

CCameraDialog::~CCameraDialog()
{
    if (isWorking)
        copy.Stop();
    Answer(handset::kBoxNo);
    thread.join();
}

void CCameraDialog::Build()
{
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setAccessibleName(Text(StringId::cameraProgress));
    text->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    stop = AddButton(*buttons, Text(StringId::cameraStop), QDialogButtonBox::ActionRole, "stop");
    connect(stop, &QPushButton::clicked, this, [this] { isWorking ? StopCopy() : reject(); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    const std::pair<QWidget*, const char*> rows[] = {
        {picture, "play"}, {where, "filename"}, {bar, "progress"}, {text, "filecount"}};
    for (const auto& [row, name] : rows) {
        row->setObjectName(QString::fromLatin1(name));
        column->addWidget(row);
    }
    column->addWidget(buttons);
    setMinimumWidth(90 * kGrid);
}

void CCameraDialog::Work()
{
    Outcome outcome;
    outcome.began = copy.Start();
    while (outcome.began && copy.Step()) {
    }
    outcome.whole = copy.IsWhole();
    outcome.leftOut = copy.LeftOut();
    copy.Finish();
    QMetaObject::invokeMethod(
        this, [this, outcome] { OnEnded(outcome); }, Qt::QueuedConnection);
}

void CCameraDialog::ShowMessage(platform::StringId message)
{
    QMetaObject::invokeMethod(
        this, [this, message] { OnMessage(message); }, Qt::QueuedConnection);
}

void CCameraDialog::ShowCount(int copied, int total)
{
    QMetaObject::invokeMethod(
        this,
        [this, copied, total, folder = copy.Folder(), numbers = copy.Numbers()] {
            OnCount(copied, total, folder);
            Q_EMIT Counted(numbers);
        },
        Qt::QueuedConnection);
}

int CCameraDialog::AskYesNo(platform::StringId question)
{
    QMetaObject::invokeMethod(
        this, [this, question] { Ask(question); }, Qt::QueuedConnection);
    std::unique_lock lock(mutex);
    answered.wait(lock, [this] { return answer.has_value(); });
    return *answer;
}

void CCameraDialog::Answer(int code)
{
    const std::lock_guard lock(mutex);
    answer = code;
    answered.notify_all();
}

void CCameraDialog::Ask(platform::StringId question)
{
    auto* box = new CMessageBox(QMessageBox::Question, windowTitle(), Text(question), this);
    const CButtonEx* yes = box->Add(QMessageBox::Yes);
    CButtonEx* no = box->Add(QMessageBox::No);
    box->setDefaultButton(no);
    box->setEscapeButton(no);
    connect(box, &QDialog::finished, this,
            [this, box, yes] { Answer(box->clickedButton() == yes ? handset::kBoxYes : handset::kBoxNo); });
    box->Open();
}

// The message outlives the dialog, which closes.
void CCameraDialog::OnMessage(platform::StringId message)
{
    auto* box = new CMessageBox(QMessageBox::Information, windowTitle(), Text(message), parentWidget());
    box->Add(QMessageBox::Ok);
    box->Open();
}

void CCameraDialog::OnCount(int copied, int total, const std::string& folder)
{
    picture->SetPlaying(isWorking);
    bar->setRange(0, total);
    bar->setValue(copied);
    where->SetPath(folder);
    if (stop->isEnabled())
        text->setText(Text(StringId::cameraCount, QLocale().toString(copied), QLocale().toString(total)));
}

void CCameraDialog::StopCopy()
{
    stop->setEnabled(false);
    text->setText(Text(StringId::cameraStopping));
    copy.Stop();
}

void CCameraDialog::reject()
{
    if (!isWorking)
        return QDialog::reject();
    // It stays until the file in work is gone.
    isClosing = true;
    stop->setEnabled(false);
    text->setText(Text(StringId::cameraStopping));
    copy.Cancel();
}

QString CCameraDialog::EndText() const
{
    using enum handset::CCameraCopy::Trouble;
    const QString folder = Shown(copy.Folder());
    const QString why = Shown(copy.Failure());
    const bool nothing = copy.Files().empty();
    switch (copy.WhatFailed()) {
    case none:
        return nothing ? Text(StringId::cameraStoppedNothing) : Text(StringId::cameraStopped, folder);
    case noPlace:
        return Text(StringId::cameraNoPlace);
    case noFolder:
        return Text(StringId::cameraNoFolder, folder, why);
    case storeGone:
        return nothing ? Text(StringId::cameraGoneNothing) : Text(StringId::cameraGone, folder);
    case diskFull:
        return Text(nothing ? StringId::cameraFullNothing : StringId::cameraFull, folder);
    case other:
        break;
    }
    return nothing ? Text(StringId::cameraFailedNothing, why) : Text(StringId::cameraFailed, why, folder);
}

void CCameraDialog::OnEnded(const Outcome& outcome)
{
    isWorking = false;
    picture->SetPlaying(false);
    Q_EMIT Counted(copy.Numbers());
    Q_EMIT Ended(static_cast<int>(copy.Files().size()), copy.HasKeptPhotos(), outcome.leftOut);
    if (outcome.whole)
        return accept();
    if (!outcome.began || isClosing)
        return QDialog::reject();
    stop->setText(Text(StringId::cameraClose));
    stop->setEnabled(true);
    stop->setFocus();
    text->setText(EndText());
    stop->SetImage({});
    // The text may need more lines than the one before it.
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

}  // namespace ui
