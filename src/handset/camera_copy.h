// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCameraCopy: copies all photos and clips of a camera's store into a new folder named by the time of the
// start, and may empty the store after that; without a window.
//
// The order of calls: Start; Step until it is false; Finish when IsWhole says so. All on one thread, which
// may have to wait for the medium, but for Stop and Cancel. The connection ends with the object.
#pragma once

#include "platform/camera_store.h"
#include "platform/string_ids.h"
#include "platform/types.h"

#include <atomic>
#include <string>
#include <vector>

namespace handset
{

// What numbers the copies take: with useId the counters, which grow with each file, else the places among the
// camera's photos or clips.
struct CameraNumbers {
    bool useId = false;
    int photo = 0;
    int clip = 0;
};

struct CameraCopyPlan {
    std::string programFolder;   // holds "Dev.ini"
    std::string downloadFolder;  // receives the new folder; made when missing, at every level
    int delDscPhoto = 2;         // 1 deletes the camera's photos after the copy, 2 asks
    CameraNumbers numbers;
};

// The codes of a message box's buttons.
inline constexpr int kBoxOk = 1;
inline constexpr int kBoxYes = 6;
inline constexpr int kBoxNo = 7;

// Who shows what the copy has to say. Called on the copy's thread.
class CCameraCopyHost
{
public:
    virtual ~CCameraCopyHost() = default;
    virtual void ShowMessage(platform::StringId text) = 0;
    // A question with the buttons Yes and No: kBoxYes or kBoxNo.
    virtual int AskYesNo(platform::StringId text) = 0;
    virtual void ShowCount(int copied, int total) = 0;
};

class CCameraCopy
{
public:
    CCameraCopy(platform::CMsdModule& library, CameraCopyPlan plan, CCameraCopyHost& shownBy);
    ~CCameraCopy();
    CCameraCopy(const CCameraCopy&) = delete;
    CCameraCopy& operator=(const CCameraCopy&) = delete;

    // False when there is nothing to copy from: the message has been shown.
    bool Start();
    // Copies one file, photos first. False when the run has ended: after the last file, or stopped.
    bool Step();
    // Whether every file has been copied, and nobody has stopped the run.
    bool IsWhole() const { return !halted && total > 0 && steps >= total && copied == total; }
    // The end of a whole run: deletes the camera's photos if the plan says so. Asking never leads to it,
    // since it takes the code of a button that the question does not have.
    void Finish();

    // On any thread. Stop ends the run, files that were copied stay; so does Cancel, for a user who gave up.
    void Stop() { Halt(1); }
    void Cancel() { Halt(0); }

    // The folder that was made for this copy.
    const std::string& Folder() const { return folder; }
    // The copies, in their order.
    const std::vector<std::string>& Files() const { return files; }
    int Total() const { return total; }
    // What the camera has and cannot be read; known after Start.
    std::vector<std::string> LeftOut() const { return module.LeftOut(); }
    // Why the run ended before its last file, without anybody's wish; none as long as it did not.
    enum class Trouble { none, noPlace, noFolder, storeGone, diskFull, other };
    Trouble WhatFailed() const { return trouble; }
    // The same in plain words; empty for `none` and `noPlace`.
    const std::string& Failure() const { return failure; }
    // Whether photos that should have been deleted are still there.
    bool HasKeptPhotos() const { return keptPhotos; }
    // The counters as they are after the files copied so far.
    const CameraNumbers& Numbers() const { return plan.numbers; }

private:
    void Halt(int reason);
    void MakeFolder();
    bool CopyOne(bool isPhoto, int position);
    bool Fail(Trouble what, const std::string& why);

    platform::CMsdModule& module;
    CameraCopyPlan plan;
    CCameraCopyHost& host;
    std::string folder;
    std::vector<std::string> files;
    std::string failure;
    Trouble trouble = Trouble::none;
    int total = 0;
    int copied = 0;
    int steps = 0;
    bool isRunning = false;
    bool keptPhotos = false;
    std::atomic<bool> halted = false;
};

// "DSC00041." in the folder: prefix, five digits or more, dot.
std::string CameraFileStem(const std::string& folder, const std::string& prefix, int number);
// "11-14-2026 21-56-36" for the moment as the clocks of this place show it.
std::string CameraFolderName(platform::FileTime moment);

}  // namespace handset
