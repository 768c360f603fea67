// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetSend: sends files to the handset one by one, each made fit for it first; without a window.
//
// A ring tone that is too long is not sent, nor is what comes after it: whoever wants the others sent leaves
// it out, as PlanSending advises. A bad Java descriptor and a failed transfer end the run with a message.
#pragma once

#include "handset/handset_preparation.h"
#include "handset/transfer_run.h"

namespace handset
{

class CHandsetSend final : public CTransferRun
{
public:
    CHandsetSend(std::vector<std::string> paths, unsigned port, CTransferHost& shownBy);

    bool Start() override;
    bool Step() override;
    platform::FileDataType TypeInWork() const override;

    // How many files have been sent.
    std::size_t Position() const { return index; }
    std::size_t Count() const { return sources.size(); }

private:
    bool IsWhole() const override { return index == sources.size() && index > 0; }
    bool Send(const std::string& source, const PreparedFile& file);

    std::vector<std::string> sources;
    std::size_t index = 0;
    CHandsetPreparation preparation;
};

}  // namespace handset
