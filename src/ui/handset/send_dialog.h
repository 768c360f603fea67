// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSendDialog: files on their way to the handset. Before anything is sent it shows what each becomes.
#pragma once

#include "ui/handset/send_table.h"
#include "ui/handset/transfer_dialog.h"

class QLabel;

namespace ui
{

class CSendDialog : public CTransferDialog
{
    Q_OBJECT

public:
    // At least one path; the port as "Port.ini" has it.
    CSendDialog(std::vector<std::string> paths, unsigned portNumber, QWidget* parent);
    bool IsPlanning() const { return table->Planned() < table->Count(); }

protected:
    bool CanStart() const override;
    std::unique_ptr<handset::CTransferRun> NewRun(handset::CTransferHost& host) override;
    QString BeginText() const override;
    QString FileText(int number, platform::FileDataType type) const override;
    QString EndText(int count) const override;
    void SetRunning(bool running) override;
    void OnFile(int number, const handset::TransferredFile& file) override;

private:
    void PlanNext(const std::shared_ptr<handset::CHandsetPreparation>& preparation);
    void ShowSummary();

    unsigned port;
    QLabel* sign;
    QLabel* summary;
    CSendTable* table;
};

}  // namespace ui
