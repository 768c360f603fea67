// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFileJobs: the jobs on files that the window has asked for, one after the other on a thread of their own.
//
// A job that takes longer than half a second shows a dialog with its progress and a button that stops it; the
// window stays live. What a job asks is asked in a dialog, and the job waits for the answer. At the end of
// the window the job in work is stopped and waited for.
#pragma once

#include "browser/file_job.h"

#include <QObject>
#include <QTimer>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

class QWidget;

namespace ui
{

class CClashDialog;
class CJobDialog;

class CFileJobs : public QObject, private browser::CFileJobHost
{
    Q_OBJECT

public:
    // The dialogs stand before `window`, which must outlive the object.
    explicit CFileJobs(QWidget* window);
    ~CFileJobs() override;

    void Start(browser::FileJobRequest request);
    // Other work on `items` files, which is told and stopped like a job; `work` runs on the jobs' thread.
    using WorkOnFiles = std::function<browser::FileJobReport(browser::CFileJobHost&)>;
    void Start(browser::FileTask task, std::size_t items, WorkOnFiles work);
    // Whether a job is in work or waiting.
    bool IsBusy() const { return jobsLeft > 0; }
    // Stops the job in work.
    void Cancel();

Q_SIGNALS:
    void Finished(const browser::FileJobReport& report);

private:
    struct Job {
        browser::FileTask task;
        std::size_t items;
        WorkOnFiles work;
    };
    // On the jobs' thread.
    void Work();
    browser::ClashReply AskAboutClash(const browser::Clash& clash) override;
    bool Progress(const browser::FileJobProgress& progress) override;

    // On the window's thread.
    void OnFinished(const browser::FileJobReport& report);
    void Ask(const browser::Clash& clash);
    void Answer(const browser::ClashReply& reply);
    void ShowProgress();

    QWidget* owner;
    int jobsLeft = 0;
    CJobDialog* progressDialog = nullptr;
    QTimer patience;  // runs until a job is long enough to be shown
    QTimer refresh;

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> waiting;
    browser::FileTask task = browser::FileTask::copy;  // in work
    browser::FileJobProgress latest;
    std::optional<browser::ClashReply> reply;
    bool cancelled = false;  // the job in work is to stop
    bool ending = false;
    std::thread thread;
};

}  // namespace ui
