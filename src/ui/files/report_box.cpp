// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/report_box.h"

#include "browser/file_names.h"
#include "ui/controls/message_box.h"
#include "ui/display_text.h"
#include "ui/words.h"

#include <QLocale>

namespace ui
{

namespace
{

constexpr std::size_t kMostLines = 8;

using browser::FileTask;
using platform::FileFailure;

QString Reason(const platform::FileProblem& problem)
{
    switch (problem.failure) {
    case FileFailure::missing:
        return Text(StringId::filesBecauseMissing);
    case FileFailure::nameTaken:
        return Text(StringId::filesBecauseTaken);
    case FileFailure::itself:
        return Text(StringId::filesBecauseItself);
    case FileFailure::intoItself:
        return Text(StringId::filesBecauseIntoItself);
    case FileFailure::noPermission:
        return Text(StringId::filesBecauseForbidden);
    case FileFailure::noRoom:
        return Text(StringId::filesBecauseNoRoom);
    case FileFailure::badName:
        return Text(StringId::filesBecauseBadName);
    case FileFailure::noTrash:
        return Text(StringId::filesBecauseNoTrash);
    case FileFailure::changed:
        return Text(StringId::filesBecauseChanged);
    default:
        return Shown(problem.reason);
    }
}

QString Heading(FileTask task, qint64 count)
{
    switch (task) {
    case FileTask::copy:
        return Counted(StringId::filesNotCopied, count);
    case FileTask::move:
        return Counted(StringId::filesNotMoved, count);
    case FileTask::trash:
        return Counted(StringId::filesNotTrashed, count);
    case FileTask::remove:
        return Counted(StringId::filesNotRemoved, count);
    case FileTask::rename:
        return count == 1 ? Text(StringId::filesNotRenamed) : Counted(StringId::filesNotAllRenamed, count);
    case FileTask::changeTimes:
        return Text(StringId::stampReadOnly);
    case FileTask::setTexts:
        return Counted(StringId::captionNotStored, count);
    case FileTask::makeFolder:
        return Text(StringId::filesNoFolderMade);
    case FileTask::makePicture:
        return Text(StringId::filesNoFileMade);
    case FileTask::makeTones:
        return Counted(StringId::toneNotMade, count);
    case FileTask::removeFromHandset:
        return Text(StringId::handsetDeleteFailed);
    case FileTask::undo:
        return Counted(StringId::filesNotUndone, count);
    }
    return {};
}

QString Number(std::size_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString Details(const browser::FileJobReport& report)
{
    QStringList lines;
    for (std::size_t i = 0; i < report.problems.size() && i < kMostLines; ++i) {
        const platform::FileProblem& problem = report.problems[i];
        lines.append(
            Text(StringId::filesProblemLine, Shown(browser::FileName(problem.path)), Reason(problem)));
    }
    if (report.problemCount > kMostLines)
        lines.append(
            Counted(StringId::filesMoreProblems, static_cast<qint64>(report.problemCount - kMostLines)));
    lines.append(QString());
    lines.append(Text(StringId::filesWereDone, Number(report.done), Number(report.items)));
    if (report.skipped > 0)
        lines.append(Text(StringId::filesWereSkipped, Number(report.skipped)));
    if (report.cancelled)
        lines.append(Text(StringId::filesWasCancelled));
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

void TellReport(QWidget* parent, const browser::FileJobReport& report)
{
    if (report.problemCount == 0)
        return;
    auto* box = new CMessageBox(CMessageBox::Warning, Text(StringId::filesReportTitle),
                                Heading(report.task, static_cast<qint64>(report.problemCount)), parent);
    box->setInformativeText(Details(report));
    box->Add(CMessageBox::Ok);
    box->Open();
}

QString UndoText(const browser::UndoRecord* record)
{
    if (!record)
        return Text(StringId::filesUndo);
    const QString name = Shown(record->name);
    const auto count = static_cast<qint64>(record->items);
    const auto forms = [&](StringId one, StringId many) {
        return count == 1 ? Text(one, name) : Counted(many, count);
    };
    switch (record->task) {
    case FileTask::copy:
        return forms(StringId::filesUndoCopyName, StringId::filesUndoCopy);
    case FileTask::move:
        return forms(StringId::filesUndoMoveName, StringId::filesUndoMove);
    case FileTask::rename:
        return forms(StringId::filesUndoRenameName, StringId::filesUndoRename);
    case FileTask::changeTimes:
        return forms(StringId::stampUndoName, StringId::stampUndo);
    case FileTask::makeFolder:
        return Text(StringId::filesUndoFolderName, name);
    case FileTask::makePicture:
        return Text(StringId::filesUndoPasteName, name);
    case FileTask::makeTones:
        return forms(StringId::toneUndoName, StringId::toneUndo);
    default:
        return forms(StringId::filesUndoDeleteName, StringId::filesUndoDelete);
    }
}

}  // namespace ui
