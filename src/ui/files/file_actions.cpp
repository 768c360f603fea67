// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/file_actions.h"

#include "browser/change_journal.h"
#include "browser/file_names.h"
#include "platform/services.h"
#include "ui/background.h"
#include "ui/controls/message_box.h"
#include "ui/display_text.h"
#include "ui/files/file_mime.h"
#include "ui/files/name_editor.h"
#include "ui/files/new_folder_dialog.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/item_painter.h"
#include "ui/left_view.h"
#include "ui/photo/photo_info_pane.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>

#include <algorithm>

namespace ui
{

namespace
{

using browser::FileTask;

std::string FolderPath(const std::string& path)
{
    return std::string(browser::FolderOf(path));
}

// Whether the job makes, changes or takes away files of that folder.
bool WorksIn(const browser::FileJobRequest& request, const std::string& folder)
{
    const auto isHere = [&folder](const std::string& path) { return FolderPath(path) == folder; };
    return request.target == folder || isHere(request.target) ||
           std::ranges::any_of(request.sources, isHere) ||
           std::ranges::any_of(request.record.steps, [&isHere](const browser::UndoStep& step) {
               return isHere(step.path) || isHere(step.origin);
           });
}

}  // namespace

CFileActions::CFileActions(CIEShellListCtrl& fileList, CLeftView& leftView, QWidget& mainWindow,
                           browser::JobStores jobStores)
    : QObject(&mainWindow), list(fileList), left(leftView), window(mainWindow), jobs(&mainWindow),
      stores(std::move(jobStores))
{
    ReadJournal();
    connect(&jobs, &CFileJobs::Finished, this, &CFileActions::OnFinished);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        if (!settingClipboard && !QGuiApplication::clipboard()->ownsClipboard())
            SetFaded({});
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        if (qobject_cast<QMenuBar*>(now))
            focusBeforeMenu = before;
    });
    WatchList();
    for (CFolderTree* tree : left.Trees())
        WatchTree(tree);
    connect(&left, &CLeftView::TreeMade, this, &CFileActions::WatchTree);
}

CFileActions::Place CFileActions::Focus() const
{
    const QWidget* focus = window.focusWidget();
    if (qobject_cast<const QMenuBar*>(focus))
        focus = focusBeforeMenu.data();
    // A field with a caption in it must not send a key on to the files.
    for (const QWidget* place = focus; place; place = place->parentWidget()) {
        if (qobject_cast<const CPhotoInfoPane*>(place))
            return Place::elsewhere;
    }
    if (!left.isAncestorOf(focus))
        return Place::list;
    const CFolderTree* tree = left.Tree();
    return tree->isVisible() && (tree == focus || tree->isAncestorOf(focus)) ? Place::tree : Place::elsewhere;
}

std::vector<std::string> CFileActions::Chosen() const
{
    const Place focus = Focus();
    if (focus == Place::list)
        return list.SelectedPaths();
    const CFolderTree& tree = *left.Tree();
    if (focus == Place::elsewhere || !tree.IsPlainFolder(tree.currentIndex()))
        return {};
    return {tree.Folder()};
}

std::string CFileActions::Receiver() const
{
    switch (Focus()) {
    case Place::list:
        return list.List().Folder();
    case Place::tree:
        return left.Tree()->Folder();
    default:
        return {};
    }
}

void CFileActions::Copy()
{
    Put(TransferKind::copy);
}

void CFileActions::Cut()
{
    Put(TransferKind::move);
}

void CFileActions::Put(TransferKind kind)
{
    // A place of the tree may be copied, but not taken away.
    std::vector<std::string> paths = Chosen();
    if (paths.empty() && kind == TransferKind::copy && IsInTree() && !left.Tree()->Folder().empty())
        paths = {left.Tree()->Folder()};
    if (paths.empty())
        return;
    settingClipboard = true;
    QGuiApplication::clipboard()->setMimeData(MakeFileMime({kind, paths}));
    settingClipboard = false;
    SetFaded(kind == TransferKind::move ? std::set(paths.begin(), paths.end()) : std::set<std::string>());
}

void CFileActions::SetFaded(const std::set<std::string>& paths)
{
    if (paths == faded)
        return;
    faded = paths;
    list.SetFaded(faded);
}

void CFileActions::Paste()
{
    PasteInto(Receiver());
}

void CFileActions::PasteInto(const std::string& folder)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    const QMimeData* data = clipboard.mimeData();
    if (!data || folder.empty())
        return;
    if (!MayHoldFiles(*data))
        return PastePicture(folder);
    const FileTransfer transfer = ReadFileMime(*data);
    Transfer(transfer, folder);
    // What was cut is moved once.
    if (transfer.kind == TransferKind::move) {
        clipboard.clear();
        SetFaded({});
    }
}

void CFileActions::PastePicture(const std::string& folder)
{
    const QImage picture = QGuiApplication::clipboard()->image();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (picture.isNull() || !buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "BMP"))
        return;
    Start({FileTask::makePicture, {}, folder, {}, bytes.toStdString()});
}

void CFileActions::Transfer(const FileTransfer& transfer, const std::string& folder)
{
    if (transfer.paths.empty())
        return;
    const FileTask task = transfer.kind == TransferKind::move ? FileTask::move : FileTask::copy;
    Start({task, transfer.paths, folder, {}, {}});
}

bool CFileActions::IsAskedElsewhere(FileTask task, const std::vector<std::string>& paths) const
{
    return Focus() == Place::list && askBeforeDelete && askBeforeDelete(task, paths);
}

void CFileActions::Delete()
{
    std::vector<std::string> paths = Chosen();
    if (!paths.empty() && !IsAskedElsewhere(FileTask::trash, paths))
        Start({FileTask::trash, std::move(paths), {}, {}, {}});
}

void CFileActions::DeleteForGood()
{
    const std::vector<std::string> paths = Chosen();
    if (!paths.empty() && IsAskedElsewhere(FileTask::remove, paths))
        return;
    if (paths.size() == 1)
        AskToRemove(paths, Text(StringId::filesAskRemoveName, Shown(browser::FileName(paths.front()))));
    else if (!paths.empty())
        AskToRemove(paths, Counted(StringId::filesAskRemove, static_cast<qint64>(paths.size())));
}

void CFileActions::AskToRemove(const std::vector<std::string>& paths, const QString& question)
{
    auto* box = new CMessageBox(CMessageBox::Warning, Text(StringId::filesAskTitle), question, &window);
    box->setInformativeText(Text(StringId::filesAskRemoveMore));
    box->Add(Text(StringId::filesAskRemoveButton), CMessageBox::AcceptRole);
    CButtonEx* keep = box->Add(Text(StringId::filesCancel), CMessageBox::RejectRole);
    box->setDefaultButton(keep);
    box->setEscapeButton(keep);
    connect(box, &QMessageBox::buttonClicked, this, [this, paths, keep](const QAbstractButton* pressed) {
        if (pressed != keep)
            Start({FileTask::remove, paths, {}, {}, {}});
    });
    box->Open();
}

void CFileActions::Rename()
{
    const Place focus = Focus();
    if (focus == Place::tree)
        RenameInTree(*left.Tree(), left.Tree()->currentIndex());
    else if (const auto paths = Chosen(); focus == Place::list && paths.size() > 1)
        Q_EMIT SeveralToRename(paths);
    else if (focus == Place::list)
        RenameInList();
}

void CFileActions::RenameInList()
{
    QAbstractItemView& view = *list.View();
    const QModelIndex current = view.currentIndex();
    if (!current.isValid() || !view.selectionModel()->isSelected(current) ||
        current.row() >= list.List().Count())
        return;
    view.scrollTo(current);
    const QModelIndex index = current.siblingAtColumn(CMediaListModel::nameColumn);
    QRect place = view.visualRect(index);
    if (list.Style() == ViewStyle::thumbnails)
        place = CItemPainter::NameBox(place);
    else
        place.adjust(view.isRightToLeft() ? 0 : 6 * kGrid, 0, view.isRightToLeft() ? -6 * kGrid : 0, 0);
    RenameIn(view.viewport(), place, list.List().PathOf(index.row()));
}

void CFileActions::RenameInTree(CFolderTree& tree, const QModelIndex& folder)
{
    if (!tree.IsPlainFolder(folder))
        return;
    tree.scrollTo(folder);
    QRect place = tree.visualRect(folder);
    place.adjust(tree.isRightToLeft() ? 0 : 6 * kGrid, 0, tree.isRightToLeft() ? -6 * kGrid : 0, 0);
    RenameIn(tree.viewport(), place, tree.PathOf(folder));
}

void CFileActions::RenameIn(QWidget* viewport, const QRect& place, const std::string& path)
{
    const auto facts = platform::Os().shell->FindEntry(path);
    auto* editor =
        new CNameEditor(std::string(browser::FileName(path)), facts && facts->isFolder, place, viewport);
    const auto target = [path](const std::string& name) {
        return browser::JoinPath(browser::FolderOf(path), name);
    };
    editor->objection = [target, facts](const std::string& name) {
        const auto there = platform::Os().shell->FindEntry(target(name));
        // Another spelling of the own name is there already on a file system that does not tell case.
        const bool taken = there && !(facts && there->stamp == facts->stamp);
        return taken ? Text(StringId::filesNameTaken, Shown(name)) : QString();
    };
    connect(editor, &CNameEditor::Accepted, this, [this, target, path](const std::string& name) {
        Start({FileTask::rename, {path}, target(name), {}, {}});
    });
}

void CFileActions::NewFolder()
{
    AskForFolder(Receiver());
}

void CFileActions::AskForFolder(const std::string& folder)
{
    if (folder.empty())
        return;
    auto* dialog = new CNewFolderDialog(folder, &window);
    connect(dialog, &CNewFolderDialog::Chosen, this, [this](const std::string& path) {
        Start({FileTask::makeFolder, {}, path, {}, {}});
    });
    dialog->open();
}

void CFileActions::Undo()
{
    if (auto record = undo.Take())
        Start({FileTask::undo, {}, {}, std::move(*record), {}});
    KeepUndo({});
}

void CFileActions::Start(browser::FileJobRequest request)
{
    const bool takesAway = request.task == FileTask::trash || request.task == FileTask::remove;
    const bool fromList = takesAway && request.sources == list.SelectedPaths();
    asked.push_back({request.sources, list.List().Folder(),
                     fromList ? list.NameAfterSelection() : std::string(), request.record});
    if (WorksIn(request, list.List().Folder()))
        list.Follower().SwallowNextChange();
    for (CIEShellTreeCtrl* tree : left.Trees())
        tree->SwallowNextChange();
    request.stores = stores;
    jobs.Start(std::move(request));
}

void CFileActions::Start(FileTask task, std::vector<std::string> paths, CFileJobs::WorkOnFiles work)
{
    const std::size_t items = paths.size();
    const auto isHere = [this](const std::string& path) { return FolderPath(path) == list.List().Folder(); };
    if (task == FileTask::changeTimes && std::ranges::any_of(paths, isHere))
        list.Follower().SwallowNextChange();
    asked.push_back({std::move(paths), list.List().Folder(), {}, {}});
    jobs.Start(task, items, std::move(work));
}

// Off the window's thread: what a killed process left is settled first.
void CFileActions::ReadJournal()
{
    if (stores.journal.empty())
        return;
    const auto read = [held = stores] {
        browser::CThumbDbMgr manager(held.thumbnails);
        manager.Load();
        browser::CChangeJournal journal(held.journal);
        journal.Recover(manager);
        std::vector<browser::UndoRecord> records;
        for (browser::JournalEntry& entry : journal.List())
            records.push_back(std::move(entry.record));
        return records;
    };
    InBackground(this, read, [this](std::vector<browser::UndoRecord> records) {
        undo.PushBelow(std::move(records));
        KeepUndo({});
    });
}

}  // namespace ui
