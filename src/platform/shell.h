// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CShell and CMessages: the desktop around the program.
#pragma once

#include "platform/types.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace platform
{

enum class KnownFolder { localAppData, documents, commonAppData, windows, home };

enum class FileOperation { copy, move, rename, remove, trash };

struct FileOperationRequest {
    FileOperation operation = FileOperation::copy;
    std::vector<std::string> sources;
    std::string target;      // copy, move: the folder that receives the sources; rename: the new path
    bool filesOnly = false;  // copy: sub-folders of a source folder are left out
};

// A mounted file system that holds files.
struct Volume {
    std::string mountPoint;
    std::string label;  // for people; never empty
    bool removable = false;
};

class CShell
{
public:
    virtual ~CShell() = default;
    // The folder without a trailing separator, made when `create` is set; nothing when it is not to be had.
    virtual std::optional<std::string> GetFolderPath(KnownFolder folder, bool create) = 0;
    // True when all of it was done. An existing target is never overwritten: that source fails. A copy that
    // fails half-way leaves no half-written file.
    virtual bool SHFileOperation(const FileOperationRequest& request) = 0;
    // Starts a program detached from this one: `command` is a program and its arguments, divided by blanks,
    // with double quotes around those that hold blanks. False when it cannot be started.
    virtual bool WinExec(const std::string& command) = 0;
    // Opens a file or folder with the program that the desktop has for it.
    virtual bool ShellExecute(const std::string& path) = 0;
    virtual std::vector<Volume> Volumes() = 0;
};

// The registered messages by which the programs of the suite tell each other things, and the question
// whether a window of a class is there. Without a message bus nothing is sent and no window is found but
// one of this user's own session (see FindWindow).
class CMessages
{
public:
    using Handler = std::function<int(std::uint32_t wParam, std::int64_t lParam)>;

    virtual ~CMessages() = default;
    // The number of the message of that name, the same at every call with the name; at least 0xC000.
    virtual std::uint32_t RegisterWindowMessage(const std::string& name) = 0;
    // Calls `handler` on the thread of the user interface for each such message from another program.
    virtual void Listen(std::uint32_t message, Handler handler) = 0;
    virtual bool Broadcast(std::uint32_t message, std::uint32_t wParam, std::int64_t lParam) = 0;
    // Claims the window class for this process; false when another process of the user has it. The claim
    // ends with the process, however it ends.
    virtual bool RegisterClass(const std::string& windowClass) = 0;
    // Whether another process has the class.
    virtual bool FindWindow(const std::string& windowClass) = 0;
    // Asks the owner of the class to come to the foreground; false when there is none.
    virtual bool BringToForeground(const std::string& windowClass) = 0;
};

}  // namespace platform
