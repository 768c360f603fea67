// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CListFiller: reads a folder into a CMediaFileList while the window stays live.
//
// It works from a timer, some milliseconds at a time: first the folder's entries, then, once told that there
// is nothing more urgent, the facts of the files.
#pragma once

#include "browser/media_file_list.h"

#include <QElapsedTimer>
#include <QTimer>

namespace ui
{

class CListFiller : public QObject
{
    Q_OBJECT

public:
    explicit CListFiller(browser::CMediaFileList& mediaList, QObject* parent = nullptr);

    // Starts reading and does the first piece at once: a small folder is there when this returns.
    void Start(const std::string& folder);
    bool IsReading() const { return list.State() == browser::FillState::reading; }
    // Reads sizes and times, and dates where wanted, until all are known; a new fill ends it.
    void ReadFacts();

Q_SIGNALS:
    // The list's items are about to be replaced at some time in the piece of work that follows.
    void PieceBegins();
    // The items have been replaced, or the folder could not be read.
    void Filled();
    void FactsRead();
    // All facts have been read, and some pictures have changed since their thumbnails were made.
    void ThumbnailsDue();

private:
    void FillPiece();
    void FactsPiece();

    browser::CMediaFileList& list;
    QTimer fillTimer;
    QTimer factsTimer;
    QElapsedTimer sinceFactsTold;
};

}  // namespace ui
