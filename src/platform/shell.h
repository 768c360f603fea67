// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CShell and CMessages: the desktop around the program.
#pragma once

#include "platform/file_system.h"
#include "platform/types.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace platform
{

enum class KnownFolder { localAppData, documents, commonAppData, windows, home };

enum class FileOperation {
    copy,
    move,
    rename,
    remove,
    removeEmpty,  // a folder that holds nothing
    trash,
    restore,  // the way back from the trash
};

struct FileOperationRequest {
    FileOperation operation = FileOperation::copy;
    std::vector<std::string> sources;
    std::string target;      // copy, move: the folder that receives the sources; rename: the new path
    bool filesOnly = false;  // copy: sub-folders of a source folder are left out
};

// Why something was left undone.
enum class FileFailure {
    none,
    cancelled,
    missing,       // the source is gone, or the folder that is to receive it
    nameTaken,     // something of the new name is there
    itself,        // the new path names the source itself
    intoItself,    // a folder cannot receive itself
    noPermission,  // the user may not, or the medium is write-protected
    noRoom,
    badName,  // the file system takes no such name
    noTrash,
    changed,  // it is no longer what it was
    other,
};

struct FileProblem {
    std::string path;
    FileFailure failure = FileFailure::none;
    std::string reason;  // in plain words, as CFileSystem::LastError
};

// One file or folder, and what is to happen to it. Paths name the entry itself: links are not followed.
struct FileStep {
    FileOperation operation = FileOperation::copy;  // any but `move`: rename reaches every folder
    std::string source;                             // restore: its place in the trash
    std::string target;                             // copy, rename, restore: the new path, a free name
    // Called often with the bytes done and those to do (both 0 where bytes do not matter); false stops.
    std::function<bool(std::uint64_t done, std::uint64_t all)> progress;
};

struct FileStepResult {
    bool done = false;   // all of it
    std::string target;  // where the source, or what there is of its copy, is now; empty for nowhere
    std::vector<FileProblem> problems;  // what was left undone, the first hundred of them
};

// What a path names, links not followed.
struct EntryFacts {
    FileStamp stamp;
    bool isFolder = false;
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
    // Does one step. A name that is taken stays as it is, a file is copied whole or not at all, and a move
    // between file systems removes the source only when all of it is on the other medium. A folder that was
    // copied in part stays so. May be called on any thread.
    virtual FileStepResult DoFileStep(const FileStep& step) = 0;
    virtual std::optional<EntryFacts> FindEntry(const std::string& path) = 0;
    // Starts a program detached from this one: `command` is a program and its arguments, divided by blanks,
    // with double quotes around those that hold blanks. False when it cannot be started.
    virtual bool WinExec(const std::string& command) = 0;
    // The same for words that stand as they are.
    virtual bool StartProgram(const std::vector<std::string>& words) = 0;
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
