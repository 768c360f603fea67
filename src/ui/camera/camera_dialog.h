// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCameraDialog: copies the photos of a camera or card, on a thread of its own, from when it is made.
//
// It closes by itself after the last file, or with a message when there is nothing to copy. A copy that was
// stopped or failed stays in view with what became of it. Closing the dialog ends the copy; what it has
// copied stays.
#pragma once

#include "handset/camera_copy.h"

#include <QDialog>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

class QLabel;
class QProgressBar;

namespace ui
{

class CButtonEx;
class CPathLabel;
class CTransferPicture;

class CCameraDialog : public QDialog, private handset::CCameraCopyHost
{
    Q_OBJECT

public:
    CCameraDialog(handset::CameraCopyPlan plan, QWidget* parent);
    ~CCameraDialog() override;
    void reject() override;

Q_SIGNALS:
    // Files have been copied, and this is what the counters are now.
    void Counted(const handset::CameraNumbers& numbers);
    // The run is over after `copied` files; `kept` when photos could not be deleted, `leftOut` what the
    // camera has and could not be read.
    void Ended(int copied, bool kept, const std::vector<std::string>& leftOut);

private:
    struct Outcome {
        bool began = false;
        bool whole = false;
        std::vector<std::string> leftOut;
    };

    void Build();
    // On the copy's thread.
    void Work();
    void ShowMessage(platform::StringId text) override;
    int AskYesNo(platform::StringId text) override;
    void ShowCount(int copied, int total) override;
    // On the window's thread.
    void OnMessage(platform::StringId text);
    void OnCount(int copied, int total, const std::string& folder);
    void Ask(platform::StringId text);
    void Answer(int code);
    void StopCopy();
    void OnEnded(const Outcome& outcome);
    // What became of a run that ended early.
    QString EndText() const;

    CTransferPicture* picture;
    CPathLabel* where;
    QProgressBar* bar;
    QLabel* text;
    CButtonEx* stop;
    bool isWorking = true;
    bool isClosing = false;
    handset::CCameraCopy copy;
    std::mutex mutex;
    std::condition_variable answered;
    std::optional<int> answer;
    std::thread thread;
};

}  // namespace ui
