// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/transfer_run.h"

#include <utility>

namespace handset
{

using platform::StringId;

std::unique_ptr<platform::CUpDownLoad> CTransferRun::NewLink() const
{
    std::unique_ptr<platform::CUpDownLoad> link =
        platform::Os().handset ? platform::Os().handset->NewUpDownLoad() : nullptr;
    if (link)
        link->SetConnectPort(port);
    return link;
}

bool CTransferRun::Connect()
{
    std::unique_ptr<platform::CUpDownLoad> link = NewLink();
    platform::CUpDownLoad* const opened = link.get();
    {
        const std::lock_guard lock(guard);
        held = std::move(link);
    }
    if (!opened || opened->ATInit() != platform::kHandsetDone) {
        if (!cancelled)
            host.ShowStatus(StringId::handsetNoHandset, opened ? opened->LastError() : "");
        return false;
    }
    model = opened->Manufacturer();
    if (!model.empty() && !opened->Model().empty())
        model += ' ';
    model += opened->Model();
    return true;
}

void CTransferRun::LetGo()
{
    const std::lock_guard lock(guard);
    held.reset();
}

bool CHandsetLook::Start()
{
    const bool isThere = Connect();
    LetGo();
    return isThere;
}

void CTransferRun::Fail(StringId text, const std::string& reason)
{
    failed = true;
    host.ShowMessage(text, reason);
}

bool CTransferRun::Take(TransferredFile file, const std::string& reason)
{
    const int result = file.result;
    files.push_back(std::move(file));
    if (result == platform::kHandsetDone)
        return true;
    // A file that the user has stopped did not fail.
    if (!cancelled) {
        Fail(result == platform::kHandsetFull ? StringId::handsetNoSpace : StringId::handsetTransferFailed,
             reason);
    }
    return false;
}

void CTransferRun::Cancel()
{
    cancelled = true;
    const std::lock_guard lock(guard);
    if (held)
        held->Abort();
}

TransferEnd CTransferRun::Finish()
{
    LetGo();
    if (failed)
        return TransferEnd::failed;
    if (IsWhole()) {
        host.ShowMessage(StringId::handsetSuccessful, Remark());
        return TransferEnd::finished;
    }
    if (!cancelled)
        return TransferEnd::stopped;
    TellCancelled();
    return TransferEnd::cancelled;
}

}  // namespace handset
