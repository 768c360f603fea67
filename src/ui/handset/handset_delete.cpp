// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/handset_delete.h"

#include "app/handset_places.h"
#include "browser/file_names.h"
#include "handset/record_file.h"
#include "ui/controls/message_box.h"
#include "ui/display_text.h"
#include "ui/main_frame.h"
#include "ui/words.h"

#include <QCheckBox>

namespace ui
{

namespace
{

constexpr std::size_t kMostNames = 5;

browser::FileJobReport RemoveFromHandset(handset::CHandsetDeletion& deletion, browser::CFileJobHost& host)
{
    browser::FileJobReport report;
    report.task = browser::FileTask::removeFromHandset;
    report.items = deletion.Count();
    const auto goesOn = [&] {
        const std::size_t position = deletion.Position();
        return host.Progress({deletion.PathInWork(), position, report.items,
                              static_cast<double>(position) / static_cast<double>(report.items)});
    };
    while (deletion.Position() < report.items) {
        if (!goesOn()) {
            report.cancelled = true;
            deletion.Stop();
            break;
        }
        deletion.Step();
    }
    for (const std::string& path : deletion.FailedPaths()) {
        platform::FileProblem& problem = report.problems.emplace_back();
        problem.path = path;
    }
    report.problemCount = report.problems.size();
    return report;
}

// The first names of those that the handset kept.
QString NamesOf(const std::vector<platform::FileProblem>& problems)
{
    QStringList names;
    for (const platform::FileProblem& problem : problems) {
        if (names.size() == static_cast<qsizetype>(kMostNames)) {
            names.append(QStringLiteral("…"));
            break;
        }
        names.append(Shown(browser::FileName(problem.path)));
    }
    return names.join(QLatin1Char('\n'));
}

}  // namespace

CHandsetDelete::CHandsetDelete(CMainFrame& mainFrame) : frame(mainFrame), jobs(&mainFrame)
{
    frame.Files()->askBeforeDelete = [this](browser::FileTask task, const std::vector<std::string>& paths) {
        return Ask(task, paths);
    };
}

bool CHandsetDelete::Ask(browser::FileTask task, const std::vector<std::string>& paths)
{
    const std::string folder(browser::FolderOf(paths.front()));
    if (!app::IsFromHandset(folder))
        return false;
    const int port = app::HandsetPort(frame.Application().ProgramFolder());
    const Order order{task, paths, handset::ClassOfFolder(paths.front()),
                      port > 0 ? static_cast<unsigned>(port) : 0};
    auto* box =
        new CMessageBox(QMessageBox::Question, Text(StringId::commandDelete),
                        Counted(StringId::handsetDeleteAsk, static_cast<qint64>(paths.size())), &frame);
    box->setInformativeText(Text(task == browser::FileTask::remove ? StringId::handsetDeleteWhyForGood
                                                                   : StringId::handsetDeleteWhy));
    auto* too = new QCheckBox(Text(StringId::handsetDeleteToo), box);
    too->setObjectName(QStringLiteral("too"));
    box->setCheckBox(too);
    CButtonEx* remove = box->Add(Text(StringId::filesAskRemoveButton), CMessageBox::AcceptRole);
    CButtonEx* keep = box->Add(Text(StringId::filesCancel), CMessageBox::RejectRole);
    box->setDefaultButton(task == browser::FileTask::remove ? keep : remove);
    box->setEscapeButton(keep);
    QObject::connect(box, &QMessageBox::buttonClicked, box, [=, this](const QAbstractButton* pressed) {
        if (pressed == keep)
            return;
        if (too->isChecked())
            Remove(order);
        else
            DeleteHere(order);
    });
    box->Open();
    return true;
}

void CHandsetDelete::Remove(const Order& order)
{
    // The order is that of one job: the question is modal, and so is what it starts.
    QObject::connect(
        &jobs, &CFileJobs::Finished, &frame,
        [this, order](const browser::FileJobReport& report) {
            if (report.problemCount > 0)
                frame.Tell(Text(StringId::handsetDeleteFailed), NamesOf(report.problems));
            if (!report.cancelled)
                DeleteHere(order);
        },
        Qt::SingleShotConnection);
    std::vector<std::string> paths = order.paths;
    // The record file itself never was on the handset.
    std::erase_if(paths, [](const std::string& path) { return path == handset::RecordFileOf(path); });
    jobs.Start(browser::FileTask::removeFromHandset, paths.size(), [=](browser::CFileJobHost& host) {
        handset::CHandsetDeletion deletion(paths, order.folderClass, order.port);
        return RemoveFromHandset(deletion, host);
    });
}

void CHandsetDelete::DeleteHere(const Order& order)
{
    frame.Files()->Start({order.task, order.paths, {}, {}, {}});
}

}  // namespace ui
