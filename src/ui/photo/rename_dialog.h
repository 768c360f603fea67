// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CRenameDialog: the prefix and the digits of a batch rename, with the whole list from old to new names.
//
// The list follows each change of the fields. It is made on another thread, since it looks at the folder, and
// the latest wish wins. OK waits for the list of what the fields hold.
#pragma once

#include "photo/rename_pattern.h"
#include "ui/photo/rename_plan_model.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QTreeView>

#include <memory>
#include <optional>

class QDialogButtonBox;

namespace ui
{

class CButtonEx;

class CRenameDialog : public QDialog
{
    Q_OBJECT

public:
    // At least one path; `start` is what the fields hold at first.
    CRenameDialog(std::vector<std::string> paths, photo::CRenameFields start, QWidget* parent);
    void accept() override;
    // Whether the list does not show yet what the fields hold.
    bool IsPlanning() const { return planned != Wish(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

Q_SIGNALS:
    void Chosen(const std::vector<photo::PlannedRename>& plan, const photo::CRenameFields& used);

private:
    void NameParts();
    void BuildTable();
    QDialogButtonBox* MakeButtons();
    void Arrange(QDialogButtonBox* buttons);
    void OnEdited();
    void ShowPreview();
    // The pattern that the fields ask for; empty while they cannot be used.
    std::string Wish() const;
    photo::RenameObjection Objection() const;
    void Plan();
    void OnPlanned(const std::string& pattern, std::vector<photo::PlannedRename> plan);
    void ShowCounts();
    void ShowRoomForNotes();
    void Refuse(StringId reason);
    void Finish();

    std::shared_ptr<const std::vector<std::string>> files;
    std::string folder;  // of the first
    photo::CRenameFields fields;
    std::optional<std::string> planned;  // the pattern of the plan on show
    bool busy = false;                   // a plan is being made
    bool acceptWhenPlanned = false;
    QTimer patience;

    QLineEdit* prefix;
    QLineEdit* digits;
    QLabel* prefixText;
    QLabel* digitsText;
    QLabel* range;
    QLabel* preview;
    QLabel* counts;
    QTreeView* table;
    CRenamePlanModel* model;
    QCheckBox* onlyTaken;
    CButtonEx* ok = nullptr;
};

}  // namespace ui
