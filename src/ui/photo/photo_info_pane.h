// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPhotoInfoPane: the photo information beside the list, about what is selected there.
//
// Edits that were not stored when another selection comes are stored by themselves where no text of another
// photo and no name is lost by it; else the user is asked. Whether the pane is shown, and how wide, is kept
// in "Kelvo.ini", section "Frame". It is hidden until the user asks for it.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>

class QPushButton;
class QSplitter;

namespace ui
{

class CFileActions;
class CIEShellListCtrl;
class CPhotoInfoView;

class CPhotoInfoPane : public QWidget
{
    Q_OBJECT

public:
    // All must outlive the object. `splitter` takes the pane in; it holds what the pane stands beside.
    CPhotoInfoPane(CIEShellListCtrl& fileList, CFileActions& jobs, std::string iniFile, QSplitter& splitter);
    ~CPhotoInfoPane() override;

    bool IsOn() const { return isOn; }
    // After unstored edits were settled.
    void Turn(bool on);
    bool IsEdited() const;
    // Null until the pane is first shown.
    CPhotoInfoView* View() const { return view; }
    // Calls `then`, at once or after the user's answer, when there are no edits any more; never when the user
    // goes back to them.
    void Settle(std::function<void()> then);

Q_SIGNALS:
    void Turned(bool on);

private:
    void Build();
    void SetOn(bool on);
    void Apply();
    void ShowButtons();
    // Shows what is selected now.
    void Follow();
    void Ask(std::function<void()> then);
    void KeepWidth();

    CIEShellListCtrl& list;
    CFileActions& actions;
    std::string settingsFile;
    QSplitter& panes;
    bool isOn = false;
    int width = 0;
    CPhotoInfoView* view = nullptr;
    QPushButton* apply = nullptr;
    QPushButton* revert = nullptr;
    QPointer<QWidget> question;
    QTimer followTimer;
    QTimer widthTimer;
};

}  // namespace ui
