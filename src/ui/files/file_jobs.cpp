// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/file_jobs.h"

#include "ui/files/clash_dialog.h"
#include "ui/files/job_dialog.h"

#include <QWidget>

#include <utility>

namespace ui
{

namespace
{
constexpr int kPatience = 500;  // milliseconds before a job is shown
constexpr int kRefresh = 100;
}  // namespace

CFileJobs::CFileJobs(QWidget* window) : owner(window)
{
    patience.setSingleShot(true);
    patience.setInterval(kPatience);
    refresh.setInterval(kRefresh);
    connect(&patience, &QTimer::timeout, this, &CFileJobs::ShowProgress);
    connect(&refresh, &QTimer::timeout, this, &CFileJobs::ShowProgress);
}

CFileJobs::~CFileJobs()
{
    {
        const std::lock_guard lock(mutex);
        ending = true;
        cancelled = true;
        waiting.clear();
    }
    changed.notify_all();
    if (thread.joinable())
        thread.join();
}

void CFileJobs::Start(browser::FileJobRequest request)
{
    const browser::FileTask wanted = request.task;
    const std::size_t items = request.sources.size();
    Start(wanted, items, [request = std::move(request)](browser::CFileJobHost& host) {
        return browser::RunFileJob(request, host);
    });
}

void CFileJobs::Start(browser::FileTask wanted, std::size_t items, WorkOnFiles work)
{
    ++jobsLeft;
    {
        const std::lock_guard lock(mutex);
        waiting.push_back({wanted, items, std::move(work)});
    }
    if (!thread.joinable())
        thread = std::thread([this] { Work(); });
    changed.notify_all();
    if (!patience.isActive() && !refresh.isActive())
        patience.start();
}

void CFileJobs::Cancel()
{
    const std::lock_guard lock(mutex);
    cancelled = true;
    changed.notify_all();
}

void CFileJobs::Work()
{
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return ending || !waiting.empty(); });
        if (ending)
            return;
        const Job job = std::move(waiting.front());
        waiting.pop_front();
        task = job.task;
        latest = {{}, 0, std::max<std::size_t>(1, job.items), 0};
        cancelled = false;
        lock.unlock();
        const browser::FileJobReport report = job.work(*this);
        QMetaObject::invokeMethod(this, [this, report] { OnFinished(report); });
        lock.lock();
    }
}

bool CFileJobs::Progress(const browser::FileJobProgress& progress)
{
    const std::lock_guard lock(mutex);
    latest = progress;
    return !cancelled;
}

browser::ClashReply CFileJobs::AskAboutClash(const browser::Clash& clash)
{
    std::unique_lock lock(mutex);
    reply.reset();
    QMetaObject::invokeMethod(this, [this, clash] { Ask(clash); });
    changed.wait(lock, [this] { return reply || cancelled; });
    return reply.value_or(browser::ClashReply{});
}

void CFileJobs::Ask(const browser::Clash& clash)
{
    patience.stop();
    auto* dialog = new CClashDialog(clash, progressDialog ? progressDialog : owner);
    connect(dialog, &CClashDialog::Answered, this, &CFileJobs::Answer);
    dialog->open();
}

void CFileJobs::Answer(const browser::ClashReply& answer)
{
    {
        const std::lock_guard lock(mutex);
        reply = answer;
    }
    changed.notify_all();
    if (!refresh.isActive())
        patience.start();
}

void CFileJobs::ShowProgress()
{
    if (!progressDialog) {
        progressDialog = new CJobDialog(owner);
        connect(progressDialog, &CJobDialog::Cancelled, this, &CFileJobs::Cancel);
        refresh.start();
    }
    browser::FileJobProgress now;
    browser::FileTask shown{};
    std::size_t queued = 0;
    {
        const std::lock_guard lock(mutex);
        now = latest;
        shown = task;
        queued = waiting.size();
    }
    progressDialog->Show(shown, now, queued);
}

void CFileJobs::OnFinished(const browser::FileJobReport& report)
{
    if (--jobsLeft == 0) {
        patience.stop();
        refresh.stop();
        delete std::exchange(progressDialog, nullptr);
    } else if (progressDialog) {
        progressDialog->Renew();
    }
    Q_EMIT Finished(report);
}

}  // namespace ui
