// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/transfer_run.h"

#include <utility>

namespace handset
{

using platform::StringId;

namespace
{

std::unique_ptr<platform::CUpDownLoad> LinkAt(unsigned port)
{
    std::unique_ptr<platform::CUpDownLoad> link =
        platform::Os().handset ? platform::Os().handset->NewUpDownLoad() : nullptr;
    if (link)
        link->SetConnectPort(port);
    return link;
}

HandsetAnswer Ask(platform::CUpDownLoad* link)
{
    HandsetAnswer answer;
    if (!link)
        return answer;
    answer.isThere = link->ATInit() == platform::kHandsetDone;
    answer.reason = link->LastError();
    answer.model = link->Manufacturer();
    if (!answer.model.empty() && !link->Model().empty())
        answer.model += ' ';
    answer.model += link->Model();
    return answer;
}

}  // namespace

HandsetAnswer AskHandset(unsigned port)
{
    return Ask(LinkAt(port).get());
}

std::unique_ptr<platform::CUpDownLoad> CTransferRun::NewLink() const
{
    return LinkAt(port);
}

bool CTransferRun::Connect()
{
    std::unique_ptr<platform::CUpDownLoad> link = NewLink();
    platform::CUpDownLoad* const opened = link.get();
    {
        const std::lock_guard lock(guard);
        held = std::move(link);
    }
    const HandsetAnswer answer = Ask(opened);
    model = answer.model;
    if (!answer.isThere && !cancelled)
        host.ShowStatus(StringId::handsetNoHandset, answer.reason);
    return answer.isThere;
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
    {
        const std::lock_guard lock(guard);
        held.reset();
    }
    if (failed)
        return TransferEnd::failed;
    if (IsWhole()) {
        host.ShowMessage(StringId::handsetSuccessful, Remark());
        return TransferEnd::finished;
    }
    if (!cancelled)
        return TransferEnd::stopped;
    host.ShowMessage(StringId::handsetCancelled, {});
    return TransferEnd::cancelled;
}

}  // namespace handset
