// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTransferRun: what sending and fetching have in common: the connection, the end, and being stopped.
//
// The order of calls: Start; Step until it is false; Finish. All on one thread, which waits for the handset,
// but for Cancel. The connection lasts from Start to Finish, or as long as the object.
#pragma once

#include "platform/handset_link.h"
#include "platform/string_ids.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace handset
{

// Who shows what a transfer has to say. Called on the transfer's thread.
class CTransferHost
{
public:
    virtual ~CTransferHost() = default;
    // The status line. `reason` says more, in English, for those who want to know; it may be empty.
    virtual void ShowStatus(platform::StringId text, const std::string& reason) = 0;
    // A message box with an OK button.
    virtual void ShowMessage(platform::StringId text, const std::string& reason) = 0;
    // A file is about to be transferred: its number, from 1, and how many there are.
    virtual void ShowCounter(int number, int total) = 0;
};

enum class TransferEnd {
    finished,   // everything arrived
    stopped,    // it ended early, and why has been told, or can be seen
    failed,     // a transfer failed, which has been told
    cancelled,  // by the user, which has been told
};

// What became of one file.
struct TransferredFile {
    std::string path;    // on this side: the source, or the new file; empty when nothing came of it
    std::string sentAs;  // its name on the way
    platform::FileDataType type = platform::FileDataType::photo;
    int result = platform::kHandsetFailed;  // one of HandsetResult
};

class CTransferRun
{
public:
    virtual ~CTransferRun() = default;
    CTransferRun(const CTransferRun&) = delete;
    CTransferRun& operator=(const CTransferRun&) = delete;

    // Looks for the handset and prepares the run. False when it cannot begin: the reason has been shown.
    virtual bool Start() = 0;
    // Transfers one file. False when there is no further one, or the run has ended early.
    virtual bool Step() = 0;
    // Tells how it ended, and lets go of the handset.
    TransferEnd Finish();

    // On any thread: gives up, in the middle of a file too.
    void Cancel();
    bool IsCancelled() const { return cancelled; }

    // What the file in work is. On the transfer's thread.
    virtual platform::FileDataType TypeInWork() const = 0;

    // In the order of the transfer; those that were not begun are not among them.
    const std::vector<TransferredFile>& Files() const { return files; }
    // As the handset says after Start; "" when it does not.
    const std::string& Model() const { return model; }

protected:
    CTransferRun(unsigned portNumber, CTransferHost& shownBy) : port(portNumber), host(shownBy) {}

    // Opens the connection; false, with the status line saying so, when there is no handset.
    bool Connect();
    // A new object for one step, on the connection that is held.
    std::unique_ptr<platform::CUpDownLoad> NewLink() const;
    // Notes the file, and tells of a failure, which ends the run. Whether it has arrived.
    bool Take(TransferredFile file, const std::string& reason);
    void Fail(platform::StringId text, const std::string& reason);
    virtual bool IsWhole() const = 0;
    // More to say at a good end, in English.
    virtual std::string Remark() const { return {}; }

    unsigned port;
    CTransferHost& host;
    bool failed = false;

    // Lets go of the handset.
    void LetGo();
    virtual void TellCancelled() { host.ShowMessage(platform::StringId::handsetCancelled, {}); }

private:
    std::vector<TransferredFile> files;
    std::string model;
    std::atomic<bool> cancelled = false;
    std::mutex guard;
    std::unique_ptr<platform::CUpDownLoad> held;  // keeps the connection from one file to the next
};

// A look whether the handset is there, and which it is; it transfers nothing.
class CHandsetLook final : public CTransferRun
{
public:
    CHandsetLook(unsigned portNumber, CTransferHost& shownBy) : CTransferRun(portNumber, shownBy) {}

    bool Start() override;
    bool Step() override { return false; }
    platform::FileDataType TypeInWork() const override { return {}; }

private:
    bool IsWhole() const override { return false; }
    void TellCancelled() override {}
};

}  // namespace handset
