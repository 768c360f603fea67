// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CClashDialog: asks what to do about a name that is taken. It tells once and deletes itself.
#pragma once

#include "browser/file_job.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QPushButton;

namespace ui
{

class CClashDialog : public QDialog
{
    Q_OBJECT

public:
    CClashDialog(const browser::Clash& clash, QWidget* parent);
    void reject() override { Choose(browser::ClashAnswer::cancel); }

Q_SIGNALS:
    void Answered(const browser::ClashReply& reply);

private:
    QPushButton& AddChoice(QDialogButtonBox& buttons, const char* name, const QString& text,
                           browser::ClashAnswer answer);
    void Choose(browser::ClashAnswer answer);

    QCheckBox* forAll;
};

}  // namespace ui
