// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list_filler.h"

namespace ui
{

namespace
{

constexpr int kFillMilliseconds = 8;
constexpr int kFactsMilliseconds = 4;
constexpr int kFactsAtOnce = 32;
// How often the status line learns of facts that are still being read.
constexpr int kTellMilliseconds = 200;

}  // namespace

CListFiller::CListFiller(browser::CMediaFileList& mediaList, QObject* parent)
    : QObject(parent), list(mediaList)
{
    connect(&fillTimer, &QTimer::timeout, this, &CListFiller::FillPiece);
    connect(&factsTimer, &QTimer::timeout, this, &CListFiller::FactsPiece);
}

void CListFiller::Start(const std::string& folder)
{
    factsTimer.stop();
    fillTimer.stop();
    Q_EMIT PieceBegins();
    if (!list.StartFill(folder)) {
        Q_EMIT Filled();
        return;
    }
    fillTimer.start(0);
    FillPiece();
}

void CListFiller::FillPiece()
{
    Q_EMIT PieceBegins();
    QElapsedTimer watch;
    watch.start();
    while (list.FillStep()) {
        if (watch.elapsed() >= kFillMilliseconds)
            return;
    }
    fillTimer.stop();
    Q_EMIT Filled();
}

void CListFiller::ReadFacts()
{
    if (IsReading() || list.AllRead() || factsTimer.isActive())
        return;
    factsTimer.start(0);
    sinceFactsTold.start();
}

void CListFiller::FactsPiece()
{
    QElapsedTimer watch;
    watch.start();
    bool more = true;
    while (more && watch.elapsed() < kFactsMilliseconds)
        more = list.FactsStep(kFactsAtOnce);
    if (!more)
        factsTimer.stop();
    if (!more && list.ThumbnailsLeft() > 0)
        Q_EMIT ThumbnailsDue();
    if (!more || sinceFactsTold.elapsed() >= kTellMilliseconds) {
        sinceFactsTold.restart();
        Q_EMIT FactsRead();
    }
}

}  // namespace ui
