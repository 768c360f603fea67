// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/photo_info_view.h"

#include "browser/media_types.h"
#include "photo/caption_history.h"
#include "ui/background.h"
#include "ui/controls/message_box.h"
#include "ui/files/file_actions.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/photo/photo_facts_page.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTabWidget>

#include <utility>

namespace ui
{

namespace
{

using browser::FileJobReport;
using browser::FileTask;

// On the jobs' thread.
FileJobReport SetTexts(const std::string& storeFolder, const std::vector<std::string>& paths,
                       const photo::TextChange& change, browser::CFileJobHost& host)
{
    browser::CThumbDbMgr manager(storeFolder);
    manager.Load();
    photo::CaptionReport stored = photo::CCaptionStore(manager).Set(paths, change, host);
    FileJobReport report;
    report.task = FileTask::setTexts;
    report.items = paths.size();
    report.done = stored.stored;
    report.cancelled = stored.cancelled;
    report.problemCount = stored.problems.size();
    report.problems = std::move(stored.problems);
    return report;
}

// A long page must not keep the window from being made smaller.
QWidget* Scrolled(QWidget* page, QWidget* parent)
{
    auto* area = new QScrollArea(parent);
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    return area;
}

}  // namespace

PhotoQuestion AskAboutSelection(const CIEShellListCtrl& list)
{
    PhotoQuestion question;
    for (const int row : list.SelectedRows()) {
        const browser::MediaItem& item = list.List().Item(row);
        question.paths.push_back(list.List().PathOf(row));
        const bool isMedia = item.types != 0 || app::ToneKindOf(item.name) != app::ToneKind::none;
        question.isMedia = question.isMedia && !item.isFolder && isMedia;
        if (!item.isFolder && (item.types & browser::kTypesWithThumbnail) != 0)
            question.carriers.push_back(question.paths.back());
    }
    return question;
}

CPhotoInfoView::CPhotoInfoView(CFileActions& jobs, QWidget* parent)
    : QStackedWidget(parent), actions(jobs), tabs(new QTabWidget(this)), facts(new CPhotoFactsPage(tabs)),
      captions(new CCaptionPage(tabs)), exif(new QPlainTextEdit(tabs))
{
    auto* nothing = new QLabel(this);
    nothing->setText(Text(StringId::infoNothing) + QStringLiteral("\n\n") + Text(StringId::infoNothingMore));
    nothing->setTextFormat(Qt::PlainText);
    nothing->setWordWrap(true);
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    nothing->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    tabs->setObjectName(QStringLiteral("pages"));
    tabs->setDocumentMode(true);
    tabs->setAccessibleName(Text(StringId::infoPages));
    exif->setReadOnly(true);
    exif->setFrameShape(QFrame::NoFrame);
    exif->setAccessibleName(Text(StringId::infoExifText));
    // The lines are the same in every language.
    exif->setLayoutDirection(Qt::LeftToRight);
    tabs->addTab(Scrolled(facts, tabs), Text(StringId::infoGeneral));
    tabs->addTab(captions, Text(StringId::captionPage));
    tabs->addTab(exif, Text(StringId::infoExif));
    tabs->setTabVisible(tabs->indexOf(exif), false);
    addWidget(nothing);
    addWidget(tabs);
    connect(captions, &CCaptionPage::Edited, this, &CPhotoInfoView::Edited);
    connect(captions, &CCaptionPage::Entered, this, &CPhotoInfoView::Entered);
    connect(&actions, &CFileActions::Done, this, &CPhotoInfoView::OnJobDone);
}

CPhotoInfoView::~CPhotoInfoView()
{
    if (reading)
        *reading = true;
}

void CPhotoInfoView::Show(PhotoQuestion question)
{
    about = std::move(question);
    about.storeFolder = actions.Stores().thumbnails;
    setCurrentIndex(about.paths.empty() ? 0 : 1);
    facts->Tone()->Leave();
    if (!about.paths.empty())
        facts->Begin(about.paths);
    awaiting = true;
    given = {};
    couldNotGive = false;
    captions->setEnabled(false);
    Read();
    Q_EMIT Edited();
}

void CPhotoInfoView::OnJobDone(const FileJobReport& report)
{
    couldNotGive = report.task == FileTask::setTexts && report.problemCount > 0;
    Read();
}

void CPhotoInfoView::Reload()
{
    Read();
}

void CPhotoInfoView::Read()
{
    if (reading)
        *reading = true;
    reading.reset();
    if (about.paths.empty())
        return;
    reading = std::make_shared<std::atomic<bool>>(false);
    const auto read = [question = about, stale = reading] {
        return Answer{ReadPhotoInfo(question, *stale),
                      photo::CCaptionHistory(question.storeFolder).Captions()};
    };
    InBackground(this, read, [this, mine = reading](const Answer& answer) {
        if (mine == reading)
            OnRead(answer);
    });
}

void CPhotoInfoView::OnRead(const Answer& answer)
{
    reading.reset();
    const bool afresh = std::exchange(awaiting, false);
    facts->Show(about.paths, answer.info);
    const QString text = QString::fromStdString(answer.info.exifText);
    if (exif->toPlainText() != QString(text).remove(QLatin1Char('\r')))
        exif->setPlainText(text);
    tabs->setTabVisible(tabs->indexOf(exif), !text.isEmpty());
    captions->Offer(answer.history);
    captions->Show(about, answer.info, afresh);
    if (std::exchange(couldNotGive, false))
        captions->PutBack(given);
    captions->setEnabled(answer.info.found);
}

bool CPhotoInfoView::Store()
{
    if (awaiting || about.paths.empty())
        return true;
    if (const QString objection = captions->Objection(); !objection.isEmpty()) {
        (new CMessageBox(CMessageBox::Warning, Text(StringId::infoPane), objection, window()))->Open();
        tabs->setCurrentWidget(captions);
        return false;
    }
    const PhotoEdits edits = captions->Edits();
    StoreTexts(edits);
    if (edits.newPath) {
        actions.Start({FileTask::rename, {about.paths.front()}, *edits.newPath, {}, {}});
        about.paths = {*edits.newPath};
        if (!about.carriers.empty())
            about.carriers = about.paths;
    }
    captions->TakeAsStored(about, edits);
    return true;
}

// The caption is remembered whether or not it is a new one, as long as there is one.
void CPhotoInfoView::StoreTexts(const PhotoEdits& edits)
{
    const std::string caption = captions->Caption();
    const std::string& folder = about.storeFolder;
    if (edits.HasTexts()) {
        given = edits.change;
        actions.Start(
            FileTask::setTexts, about.carriers,
            [folder, caption, paths = about.carriers, change = edits.change](browser::CFileJobHost& host) {
                FileJobReport report = SetTexts(folder, paths, change, host);
                photo::CCaptionHistory(folder).Remember(caption, report.done > 0);
                return report;
            });
    } else if (!caption.empty()) {
        InBackground(
            this, [folder, caption] { return photo::CCaptionHistory(folder).Remember(caption, true); },
            [](bool) {});
    }
}

}  // namespace ui
