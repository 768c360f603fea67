// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What follows on a job's end: what the panes then show, and what the user is told.
#include "browser/file_names.h"
#include "platform/services.h"
#include "ui/files/file_actions.h"
#include "ui/files/report_box.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/left_view.h"
#include "ui/words.h"

#include <algorithm>

namespace ui
{

namespace
{

using browser::FileTask;

bool IsAtOrBelow(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(browser::JoinPath(folder, ""));
}

std::string FolderPath(const std::string& path)
{
    return std::string(browser::FolderOf(path));
}

}  // namespace

void CFileActions::OnFinished(const browser::FileJobReport& report)
{
    const Asked about = std::move(asked.front());
    asked.pop_front();
    KeepUndo(report);
    ShowChanges(report, about);
    AskAboutNoTrash(report);
    Q_EMIT Done(report);
}

void CFileActions::KeepUndo(const browser::FileJobReport& report)
{
    undo.Push(report.undo);
    Q_EMIT UndoChanged(UndoText(undo.Latest()), undo.Latest() != nullptr);
}

void CFileActions::ShowChanges(const browser::FileJobReport& report, const Asked& about)
{
    const std::string folder = list.List().Folder();
    std::vector<std::string> names;
    // A folder that the list leaves out takes no selection away.
    const bool isShown = report.task != FileTask::makeFolder || list.List().IncludeFolder();
    for (const std::string& path : report.results) {
        if (isShown && FolderPath(path) == folder)
            names.emplace_back(browser::FileName(path));
    }
    if (names.empty() && !about.nameAfter.empty() && about.folderOnShow == folder)
        names = {about.nameAfter};
    RefreshTrees(report, about);
    if (const std::string place = NewPlaceOf(folder, report, about); place != folder)
        Q_EMIT FolderMoved(place);
    else
        list.RefreshSelecting(names);
}

// Where the folder on show is now that it, or one above it, may have been moved or taken away.
std::string CFileActions::NewPlaceOf(const std::string& folder, const browser::FileJobReport& report,
                                     const Asked& about) const
{
    if (folder.empty() || platform::Os().shell->FindEntry(folder))
        return folder;
    const auto moved = [&folder](const std::string& from, const std::string& to) {
        return !from.empty() && IsAtOrBelow(folder, from) ? to + folder.substr(from.size()) : std::string();
    };
    for (const browser::UndoStep& step : report.undo.steps) {
        const std::string place = moved(step.origin, step.path);
        if (!place.empty() && step.action == browser::UndoAction::moveBack)
            return place;
    }
    for (const browser::UndoStep& step : about.undoing.steps) {
        const std::string place = moved(step.path, step.origin);
        if (!place.empty())
            return step.origin.empty() ? FolderPath(step.path) : place;
    }
    for (const std::string& source : about.sources) {
        if (IsAtOrBelow(folder, source))
            return FolderPath(source);
    }
    return folder;
}

void CFileActions::RefreshTrees(const browser::FileJobReport& report, const Asked& about)
{
    std::set<std::string> folders;
    for (const std::string& path : report.results)
        folders.insert(FolderPath(path));
    for (const std::string& path : about.sources)
        folders.insert(FolderPath(path));
    for (const auto* steps : {&report.undo.steps, &about.undoing.steps}) {
        for (const browser::UndoStep& step : *steps) {
            folders.insert(FolderPath(step.path));
            folders.insert(FolderPath(step.origin));
        }
    }
    for (CIEShellTreeCtrl* tree : left.Trees())
        tree->RefreshFolders(folders);
}

void CFileActions::AskAboutNoTrash(const browser::FileJobReport& report)
{
    std::vector<std::string> paths;
    for (const platform::FileProblem& problem : report.problems) {
        if (problem.failure == platform::FileFailure::noTrash)
            paths.push_back(problem.path);
    }
    const bool onlyThose = report.task == FileTask::trash && paths.size() == report.problemCount;
    if (onlyThose && !paths.empty())
        AskToRemove(paths, Counted(StringId::filesAskNoTrash, static_cast<qint64>(paths.size())));
    else
        TellReport(&window, report);
}

}  // namespace ui
