// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFileActions: what the user does with files and folders in the two panes.
//
// Commands go to the pane that has the focus: to the selected files of the list, or to the folder selected in
// the tree. The work itself is done by CFileJobs; when a job is over, both panes are brought up to date, what
// a person expects is selected, and what went wrong is told once.
#pragma once

#include "browser/undo_list.h"
#include "ui/files/drop_handler.h"
#include "ui/files/file_jobs.h"

#include <QPointer>

#include <deque>
#include <functional>
#include <set>

class QMenu;

namespace ui
{

class CFolderTree;
class CIEShellListCtrl;
class CLeftView;
class CMainMenu;

class CFileActions : public QObject
{
    Q_OBJECT

public:
    // All must outlive the object. What the journal holds of earlier runs can be undone as well, soon after.
    CFileActions(CIEShellListCtrl& fileList, CLeftView& leftView, QWidget& mainWindow,
                 browser::JobStores jobStores);

    void Copy();
    void Cut();
    // Files, or a picture, which becomes a new file.
    void Paste();
    // To the trash.
    void Delete();
    // After a question.
    void DeleteForGood();
    // Who asks first before selected files are deleted (the task is trash or remove), and sees to it then;
    // false leaves it to the usual way.
    std::function<bool(browser::FileTask task, const std::vector<std::string>& paths)> askBeforeDelete;
    // Of the current item, in place; of several selected ones, whoever hears SeveralToRename.
    void Rename();
    void NewFolder();
    void Undo();
    // Other work, whose report is treated like a job's: told, shown and kept for Undo.
    void Start(browser::FileTask task, std::vector<std::string> paths, CFileJobs::WorkOnFiles work);
    void Start(browser::FileJobRequest request);
    const browser::JobStores& Stores() const { return stores; }

    // While the menu is open, its commands on files that would do nothing are disabled.
    void Attend(QMenu& menu, const CMainMenu& commands);
    // Puts "Open" and "Open With" at the top of the list's menu.
    void AddOpening(QMenu& menu);

    const CFileJobs& Jobs() const { return jobs; }

Q_SIGNALS:
    // What Undo would take back has changed.
    void UndoChanged(const QString& text, bool possible);
    // The folder on show is no longer where it was; this is the one to go to.
    void FolderMoved(const std::string& path);
    // In the order of the list.
    void SeveralToRename(const std::vector<std::string>& paths);
    // What the jobs have done, for whoever keeps records by path.
    void Done(const browser::FileJobReport& report);

private:
    // What a job was about, kept until its report comes.
    struct Asked {
        std::vector<std::string> sources;
        std::string folderOnShow;
        std::string nameAfter;        // selected when the sources are gone
        browser::UndoRecord undoing;  // what is taken back
    };

    // What of the window has the focus. The tabs and the search panel have nothing that a command could be
    // about.
    enum class Place { list, tree, elsewhere };
    Place Focus() const;
    bool IsInTree() const { return Focus() == Place::tree; }
    // The paths that a command is about, and the folder that receives what is pasted.
    std::vector<std::string> Chosen() const;
    std::string Receiver() const;
    void Put(TransferKind kind);
    void PasteInto(const std::string& folder);
    void PastePicture(const std::string& folder);
    void Transfer(const FileTransfer& transfer, const std::string& folder);
    bool IsAskedElsewhere(browser::FileTask task, const std::vector<std::string>& paths) const;
    void AskToRemove(const std::vector<std::string>& paths, const QString& question);
    void RenameIn(QWidget* viewport, const QRect& place, const std::string& path);
    void RenameInList();
    void RenameInTree(CFolderTree& tree, const QModelIndex& folder);
    void AskForFolder(const std::string& folder);
    void ReadJournal();
    void OnFinished(const browser::FileJobReport& report);
    void KeepUndo(const browser::FileJobReport& report);
    void ShowChanges(const browser::FileJobReport& report, const Asked& asked);
    std::string NewPlaceOf(const std::string& folder, const browser::FileJobReport& report,
                           const Asked& asked) const;
    void RefreshTrees(const browser::FileJobReport& report, const Asked& asked);
    void AskAboutNoTrash(const browser::FileJobReport& report);
    void WatchTree(CFolderTree* tree);
    void WatchList();
    void Drag(const std::vector<std::string>& paths, QWidget* from);
    void FillOpenWith(QMenu& menu);
    void EnableCommands(const CMainMenu& commands) const;
    void SetFaded(const std::set<std::string>& paths);

    CIEShellListCtrl& list;
    CLeftView& left;
    QWidget& window;
    CFileJobs jobs;
    browser::JobStores stores;
    browser::CUndoList undo;
    std::deque<Asked> asked;
    std::set<std::string> faded;
    bool settingClipboard = false;
    QPointer<QWidget> focusBeforeMenu;  // a menu bar takes the focus while it is used
};

}  // namespace ui
