// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/transfer_thread.h"

#include <QMetaObject>

#include <atomic>
#include <utility>

namespace ui
{

namespace
{

// Whom the library's progress function tells, which knows of nobody itself.
std::atomic<CTransferThread*> listener = nullptr;

void TellPercent(int percent)
{
    if (CTransferThread* const present = listener)
        QMetaObject::invokeMethod(
            present, [present, percent] { Q_EMIT present->Percent(percent); }, Qt::QueuedConnection);
}

}  // namespace

CTransferThread::CTransferThread(QObject* parent) : QObject(parent)
{
    listener = this;
    platform::SetProgressFunc(TellPercent);
}

CTransferThread::~CTransferThread()
{
    Cancel();
    if (thread.joinable())
        thread.join();
    platform::SetProgressFunc(nullptr);
    listener = nullptr;
}

void CTransferThread::Run(std::unique_ptr<handset::CTransferRun> next)
{
    run = std::move(next);
    thread = std::thread([this] { Work(); });
}

void CTransferThread::Cancel()
{
    if (run)
        run->Cancel();
}

void CTransferThread::TellFiles(std::size_t& told)
{
    for (; told < run->Files().size(); ++told) {
        QMetaObject::invokeMethod(
            this, [this, file = run->Files()[told]] { Q_EMIT FileEnded(file); }, Qt::QueuedConnection);
    }
}

void CTransferThread::Work()
{
    std::size_t told = 0;
    const bool began = run->Start();
    if (began)
        QMetaObject::invokeMethod(
            this, [this, model = run->Model()] { Q_EMIT Began(model); }, Qt::QueuedConnection);
    for (bool goesOn = began; goesOn; TellFiles(told))
        goesOn = run->Step();
    const handset::TransferEnd end = run->Finish();
    QMetaObject::invokeMethod(
        this,
        [this, began, end] {
            thread.join();
            run.reset();
            Q_EMIT Ended(began, end);
        },
        Qt::QueuedConnection);
}

void CTransferThread::ShowStatus(platform::StringId text, const std::string& reason)
{
    QMetaObject::invokeMethod(
        this, [this, text, reason] { Q_EMIT Status(text, reason); }, Qt::QueuedConnection);
}

void CTransferThread::ShowMessage(platform::StringId text, const std::string& reason)
{
    QMetaObject::invokeMethod(
        this, [this, text, reason] { Q_EMIT Message(text, reason); }, Qt::QueuedConnection);
}

void CTransferThread::ShowCounter(int number, int total)
{
    QMetaObject::invokeMethod(
        this, [this, number, total, type = run->TypeInWork()] { Q_EMIT Counter(number, total, type); },
        Qt::QueuedConnection);
}

}  // namespace ui
