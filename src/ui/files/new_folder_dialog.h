// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNewFolderDialog: asks for the name of a new folder, and refuses in place a name that cannot be.
#pragma once

#include <QDialog>

#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace ui
{

class CNewFolderDialog : public QDialog
{
    Q_OBJECT

public:
    // `folder`: where the new one is to be.
    CNewFolderDialog(const std::string& folder, QWidget* parent);

Q_SIGNALS:
    void Chosen(const std::string& path);

private:
    void Check();
    void Choose();

    std::string parentFolder;
    QLineEdit* name;
    QLabel* message;
    QPushButton* create;
};

}  // namespace ui
