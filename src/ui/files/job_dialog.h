// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CJobDialog: how far a job on files has come, and the button that stops it.
#pragma once

#include "browser/file_job.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace ui
{

class CPathLabel;

class CJobDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CJobDialog(QWidget* parent);
    // `queued`: further jobs that wait.
    void Show(browser::FileTask task, const browser::FileJobProgress& progress, std::size_t queued);
    // Another job has begun: it can be stopped again.
    void Renew();
    void reject() override;

Q_SIGNALS:
    void Cancelled();

private:
    QLabel* heading;
    CPathLabel* path;
    QProgressBar* bar;
    QLabel* more;
    QPushButton* stop;
};

}  // namespace ui
