// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSendTable: the files for the handset: as what each arrives, where, how large, and what becomes of it.
//
// A file that can be sent has a tick, which the user may take away.
#pragma once

#include "handset/send_plan.h"
#include "handset/transfer_run.h"

#include <QTreeWidget>

#include <optional>

namespace ui
{

class CSendTable : public QTreeWidget
{
    Q_OBJECT

public:
    CSendTable(std::vector<std::string> paths, QWidget* parent);

    std::size_t Count() const { return paths.size(); }
    std::size_t Planned() const { return plans.size(); }
    const std::string& Path(std::size_t row) const { return paths[row]; }
    // What was found of the first file that has no plan yet.
    void Take(handset::SendPlan plan);
    // The ticked files, in their order.
    std::vector<std::string> Chosen() const;
    std::uint64_t ChosenBytes() const;
    bool HasWarnings() const;

    // Nothing can be ticked until EndRun. Files are numbered from 1, as they were chosen.
    void BeginRun();
    void ShowUnderWay(int number);
    void ShowEnd(int number, const handset::TransferredFile& file);
    void EndRun();
    const std::string& RunPath(int number) const
    {
        return paths[running[static_cast<std::size_t>(number - 1)]];
    }

Q_SIGNALS:
    void ChoiceChanged();

private:
    void SetNote(std::size_t row, const QString& note, bool isWarning);
    void SetTickable(bool on);
    bool IsChosen(std::size_t row) const;

    std::vector<std::string> paths;
    std::vector<handset::SendPlan> plans;  // of the first of them
    std::vector<std::size_t> running;      // rows of the run
};

}  // namespace ui
