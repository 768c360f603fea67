// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTransferThread: carries out transfers with the handset on a thread of its own, one after the other, and
// tells of them on the window's.
//
// One object at a time is heard by the handset's library. An object that goes while a transfer runs cancels
// it and waits for its end, which comes within a second.
#pragma once

#include "handset/transfer_run.h"

#include <QObject>

#include <thread>

namespace ui
{

class CTransferThread : public QObject, private handset::CTransferHost
{
    Q_OBJECT

public:
    explicit CTransferThread(QObject* parent);
    ~CTransferThread() override;

    // Who has to say what on the way; to be given to the run.
    handset::CTransferHost& Host() { return *this; }
    // Starts a run, or, for CHandsetLook, a look. There must be none in work.
    void Run(std::unique_ptr<handset::CTransferRun> next);
    bool IsRunning() const { return run != nullptr; }
    void Cancel();

Q_SIGNALS:
    void Status(platform::StringId text, const std::string& reason);
    void Message(platform::StringId text, const std::string& reason);
    void Counter(int number, int total, platform::FileDataType type);
    void Percent(int percent);
    // The handset is there and the transfers begin, with its maker and model.
    void Began(const std::string& model);
    void FileEnded(const handset::TransferredFile& file);
    // The run is over, and the next may be started. `began` is false when nothing was begun.
    void Ended(bool began, handset::TransferEnd end);

private:
    void ShowStatus(platform::StringId text, const std::string& reason) override;
    void ShowMessage(platform::StringId text, const std::string& reason) override;
    void ShowCounter(int number, int total) override;
    void Work();
    void TellFiles(std::size_t& told);

    std::unique_ptr<handset::CTransferRun> run;
    std::thread thread;
};

}  // namespace ui
