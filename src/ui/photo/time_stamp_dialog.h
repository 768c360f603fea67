// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTimeStampDialog: which times of the files are changed, and to what.
//
// The files' EXIF dates are looked for on another thread. Until that is done, or the user has chosen a
// source, nothing can be changed, since the source that the dialog begins with depends on it. Before OK it
// says in words what is about to happen.
#pragma once

#include "photo/time_stamp_change.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QTimeEdit>
#include <QTimer>

#include <memory>

class QDialogButtonBox;

namespace ui
{

class CButtonEx;

class CTimeStampDialog : public QDialog
{
    Q_OBJECT

public:
    CTimeStampDialog(std::vector<std::string> paths, QWidget* parent);
    ~CTimeStampDialog() override;
    void accept() override;
    bool IsLooking() const { return looking; }

Q_SIGNALS:
    // Without the journal's folder.
    void Chosen(const photo::TimeStampRequest& request);

private:
    struct Search;

    void MakeParts();
    void MakePickers();
    QDialogButtonBox* MakeButtons();
    void Arrange(QDialogButtonBox* buttons);
    void StartLooking();
    void OnFound(std::vector<std::string> found);
    void Decide(photo::TimeSource source);
    void Update();
    bool CanApply() const;
    QString Summary() const;
    QString Value() const;
    photo::ExifDate Picked() const;

    const std::vector<std::string> files;
    std::vector<std::string> dated;
    photo::CTimeStampChoice choice{false};
    bool looking = true;
    bool decided = false;  // the user has chosen a source
    std::shared_ptr<Search> search;
    QTimer lookTimer;

    QLabel* what;
    QCheckBox* creation;
    QCheckBox* modified;
    QButtonGroup* sources;
    QDateEdit* date;
    QTimeEdit* time;
    QProgressBar* progress;
    QLabel* summary;
    CButtonEx* ok = nullptr;
};

}  // namespace ui
