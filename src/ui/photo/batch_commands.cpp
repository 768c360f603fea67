// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/batch_commands.h"

#include "photo/batch_rename.h"
#include "photo/time_stamp_change.h"
#include "ui/main_frame.h"
#include "ui/photo/rename_dialog.h"
#include "ui/photo/time_stamp_dialog.h"
#include "ui/words.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace ui
{

namespace
{

constexpr std::size_t kMostProblems = 100;  // that a report names

browser::FileJobReport JobReport(const photo::TimeStampRequest& request, photo::TimeStampReport stamps)
{
    const auto& files = request.source == photo::TimeSource::exif ? request.dated : request.files;
    browser::FileJobReport report;
    report.task = browser::FileTask::changeTimes;
    report.items = files.size();
    report.done = stamps.changed;
    report.cancelled = stamps.cancelled;
    // Only the first of them are kept; without a stop, the rest is what was neither changed nor left.
    const std::size_t settled = stamps.changed + stamps.skipped;
    const bool areAllKept = stamps.cancelled || stamps.problems.size() < kMostProblems;
    report.problemCount = areAllKept ? stamps.problems.size()
                                     : std::max(stamps.problems.size(), request.files.size() - settled);
    report.problems = std::move(stamps.problems);
    report.results = request.files;
    report.undo = std::move(stamps.undo);
    return report;
}

}  // namespace

CBatchCommands::CBatchCommands(CCommandRouter& router, CMainFrame& mainFrame) : frame(mainFrame)
{
    router.On(app::CommandId::changeTimeStamp, [this] { ChangeTimeStamps(); });
    QObject::connect(frame.Files(), &CFileActions::SeveralToRename, &frame,
                     [this](const std::vector<std::string>& paths) { RenameSeveral(paths); });
}

void CBatchCommands::RenameSeveral(const std::vector<std::string>& paths)
{
    auto* dialog = new CRenameDialog(paths, fields, &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CRenameDialog::Chosen, &frame,
                     [this](const std::vector<photo::PlannedRename>& plan, const photo::CRenameFields& used) {
                         fields = used;
                         frame.Files()->Start(photo::BatchRenameJob(plan, frame.Files()->Stores()));
                     });
    dialog->open();
}

std::vector<std::string> CBatchCommands::SelectedFiles() const
{
    const browser::CMediaFileList& list = frame.List()->List();
    std::unordered_set<std::string> folders;
    for (int row = 0; row < list.Count(); ++row) {
        if (list.Item(row).isFolder)
            folders.insert(list.PathOf(row));
    }
    std::vector<std::string> paths = frame.List()->SelectedPaths();
    std::erase_if(paths, [&folders](const std::string& path) { return folders.contains(path); });
    return paths;
}

void CBatchCommands::ChangeTimeStamps()
{
    const std::vector<std::string> files = SelectedFiles();
    if (files.empty())
        return frame.Tell(Text(StringId::stampNothing));
    auto* dialog = new CTimeStampDialog(files, &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CTimeStampDialog::Chosen, &frame, [this](photo::TimeStampRequest request) {
        request.journal = frame.Files()->Stores().journal;
        const auto& changed = request.source == photo::TimeSource::exif ? request.dated : request.files;
        frame.Files()->Start(browser::FileTask::changeTimes, changed, [request](browser::CFileJobHost& host) {
            return JobReport(request, photo::ChangeTimeStamps(request, host));
        });
    });
    dialog->open();
}

}  // namespace ui
