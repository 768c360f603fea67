// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPhotoInfoView: the pages about the selected files, shown by the pane beside the list and by the window of
// its own.
//
// Files are read off the window's thread; the newest selection wins. Until the answer comes nothing can be
// edited.
#pragma once

#include "ui/photo/caption_page.h"

#include <QStackedWidget>

#include <memory>

class QPlainTextEdit;
class QTabWidget;

namespace ui
{

class CFileActions;
class CIEShellListCtrl;
class CPhotoFactsPage;

// About what is selected in the list.
PhotoQuestion AskAboutSelection(const CIEShellListCtrl& list);

class CPhotoInfoView : public QStackedWidget
{
    Q_OBJECT

public:
    // `jobs` must outlive the object.
    explicit CPhotoInfoView(CFileActions& jobs, QWidget* parent = nullptr);
    ~CPhotoInfoView() override;

    // Edits of the files shown before are gone.
    void Show(PhotoQuestion question);
    // Reads the same files again; edits stay.
    void Reload();
    const std::vector<std::string>& Paths() const { return about.paths; }
    bool IsReading() const { return reading != nullptr; }
    bool IsEdited() const { return !awaiting && !about.paths.empty() && captions->IsEdited(); }
    // Starts the jobs that store the edits: texts first, so that they follow a new name. False when the name
    // cannot be given, which the user is told.
    bool Store();
    void Revert() { captions->Revert(); }

    CPhotoFactsPage* Facts() const { return facts; }
    CCaptionPage* Captions() const { return captions; }
    QTabWidget* Tabs() const { return tabs; }

Q_SIGNALS:
    // Whether there are edits may have changed.
    void Edited();
    void Entered();

private:
    struct Answer {
        PhotoInfo info;
        std::vector<std::string> history;
    };
    void Read();
    void OnRead(const Answer& answer);
    void StoreTexts(const PhotoEdits& edits);
    void OnJobDone(const browser::FileJobReport& report);

    CFileActions& actions;
    PhotoQuestion about;
    std::shared_ptr<std::atomic<bool>> reading;  // set to true when its answer is no longer wanted
    bool awaiting = false;                       // these files are read for the first time
    photo::TextChange given;                     // to the files on show, last
    bool couldNotGive = false;
    QTabWidget* tabs;
    CPhotoFactsPage* facts;
    CCaptionPage* captions;
    QPlainTextEdit* exif;
};

}  // namespace ui
