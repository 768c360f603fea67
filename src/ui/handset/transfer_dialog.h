// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTransferDialog: what the dialogs for sending to and fetching from the handset share: the status line, the
// progress of the file and of the whole, and Start, Stop and Close.
//
// While a transfer runs it cannot be closed: Stop, Escape and the window's own button give the transfer up,
// and then the dialog closes.
#pragma once

#include "ui/controls/transfer_picture.h"
#include "ui/handset/transfer_thread.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QProgressBar;

namespace ui
{

class CButtonEx;

class CTransferDialog : public QDialog
{
    Q_OBJECT

public:
    void reject() override;
    bool IsRunning() const { return isRunning; }

Q_SIGNALS:
    // A run has ended after so many files.
    void Transferred(int count);

protected:
    // `statusName` is the status line's name in the layout file.
    CTransferDialog(const QString& title, Transfer way, const char* statusName, QWidget* parent);

    // To be called once, with the dialog's own part above the rest.
    void Arrange(QLayout* head);
    // Finds out whether the handset is there, and says so.
    void Look(unsigned port);
    // To be called when CanStart may have changed.
    void UpdateButtons();
    void SetStatus(const QString& text, const QString& reason = {});

    virtual bool CanStart() const = 0;
    virtual std::unique_ptr<handset::CTransferRun> NewRun(handset::CTransferHost& host) = 0;
    // What the status line says before the first file, and at that file.
    virtual QString BeginText() const = 0;
    virtual QString FileText(int number, platform::FileDataType type) const = 0;
    // What it says at the end when all went well.
    virtual QString EndText(int count) const = 0;
    // Nothing can be changed while it runs.
    virtual void SetRunning(bool running) = 0;
    virtual void OnFile(int number, const handset::TransferredFile& file) = 0;

private:
    void MakeParts();
    void Connect();
    void Start();
    void Stop();
    void OnCounter(int number, int count, platform::FileDataType type);
    void OnPercent(int percent);
    void OnMessage(platform::StringId text, const std::string& reason);
    void OnEnded(bool began, handset::TransferEnd end);
    void ShowBars(bool shown);

    CTransferPicture* picture;
    QLabel* status;
    QLabel* why;
    QProgressBar* fileBar;
    QProgressBar* wholeBar;
    QLabel* counter;
    CButtonEx* start = nullptr;
    CButtonEx* stop = nullptr;
    CButtonEx* close = nullptr;
    CTransferThread* transfer;
    bool isRunning = false;
    bool isLooking = false;
    bool isStopping = false;
    bool isClosing = false;  // as soon as the look has ended
    bool hasHandset = true;  // as far as is known
    int present = 0;         // the file in work, from 1
    int total = 0;
    int arrived = 0;
};

}  // namespace ui
