// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/status_bar.h"

#include "ui/display_text.h"
#include "ui/style.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QPainter>

#include <algorithm>
#include <ranges>

namespace ui
{

namespace
{

const QString kDot = QStringLiteral("  \u00b7  ");

class CProgressLine : public QProgressBar
{
public:
    explicit CProgressLine(QWidget* parent) : QProgressBar(parent)
    {
        setTextVisible(false);
        setFixedSize(30 * kGrid, kGrid);
        setAccessibleName(Text(StringId::statusThumbnails));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        FillRounded(painter, rect(), CTheme::Colours().line, height() / 2.0);
        QRectF done = rect();
        done.setWidth(done.width() * (value() - minimum()) / std::max(1, maximum() - minimum()));
        FillRounded(painter, done, CTheme::Colours().accent, height() / 2.0);
    }
};

// Folders come first in the list.
int FolderCount(const browser::CMediaFileList& list)
{
    const auto rows = std::views::iota(0, list.Count());
    return static_cast<int>(
        std::ranges::partition_point(rows, [&](int row) { return list.Item(row).isFolder; }) - rows.begin());
}

}  // namespace

CStatusBar::CStatusBar(QWidget* parent)
    : QStatusBar(parent), files(new QLabel(this)), selection(new QLabel(this)), notFollowed(new QLabel(this)),
      thumbnailsLeft(new QLabel(this)), progress(new CProgressLine(this))
{
    setSizeGripEnabled(false);
    setContentsMargins(2 * kGrid, 0, 2 * kGrid, 0);
    // Qt does not mirror margins.
    files->setContentsMargins(isRightToLeft() ? 4 * kGrid : 0, 0, isRightToLeft() ? 0 : 4 * kGrid, 0);
    addWidget(files);
    addWidget(selection, 1);
    notFollowed->setContentsMargins(0, 0, 4 * kGrid, 0);
    notFollowed->setToolTip(Text(StringId::watchNotFollowedTip));
    addPermanentWidget(notFollowed);
    addPermanentWidget(thumbnailsLeft);
    addPermanentWidget(progress);
    progress->hide();
}

void CStatusBar::ShowFiles(CIEShellListCtrl& ctrl)
{
    const browser::CMediaFileList& list = ctrl.List();
    if (ctrl.IsReading()) {
        files->setText(Counted(StringId::statusReading, static_cast<qint64>(list.FilledSoFar())));
    } else {
        const int folders = FolderCount(list);
        QString text = Counted(StringId::statusFiles, list.Count() - folders);
        if (folders > 0)
            text = Text(StringId::statusFoldersAndFiles, Counted(StringId::statusFolders, folders), text);
        if (list.IsUnsorted())
            text += kDot + Text(StringId::listSorting, QLocale().toString(list.ReadForOrder()),
                                QLocale().toString(list.Count()));
        else if (list.Count() > 0 && list.AllFactsKnown())
            text += kDot + SizeText(list.KnownBytes());
        files->setText(text);
    }
    const SelectionFacts chosen = ctrl.Selection();
    QString text;
    if (chosen.files > 0)
        text = Counted(StringId::statusSelected, chosen.files);
    if (chosen.files > 0 && chosen.complete)
        text += kDot + SizeText(chosen.bytes);
    selection->setText(text);
    notFollowed->setText(ctrl.Follower().IsLost() ? Text(StringId::watchNotFollowed) : QString());
    notFollowed->setVisible(!notFollowed->text().isEmpty());
    ShowThumbnails(ctrl);
}

void CStatusBar::ShowThumbnails(const CIEShellListCtrl& ctrl)
{
    const int left = ctrl.Style() == ViewStyle::thumbnails ? ctrl.List().ThumbnailsLeft() : 0;
    most = left == 0 ? 0 : std::max(most, left);
    progress->setVisible(left > 0);
    progress->setRange(0, std::max(most, 1));
    progress->setValue(most - left);
    thumbnailsLeft->setText(left == 0 ? QString() : Counted(StringId::statusThumbnailsLeft, left));
}

}  // namespace ui
