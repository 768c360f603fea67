// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CItemPainter: one cell of the thumbnail view.
#pragma once

#include "browser/media_file_list.h"

#include <QCache>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>

namespace ui
{

struct CellLook {
    QRect box;
    bool selected = false;
    bool current = false;  // the view has the focus and this is its current item
    bool hovered = false;
    bool faded = false;
};

// What an icon stands for: a thumbnail that is not there, or the kind of file.
enum class IconUse { thumbnail, kind };

class CItemPainter
{
public:
    CItemPainter();
    // `side`: the edge of the square that pictures are fitted into.
    static QSize CellSize(int side, const QFontMetrics& metrics);
    // Where a cell has its picture and its name.
    static QRect PictureBox(const QRect& cell);
    static QRect NameBox(const QRect& cell);
    void Draw(QPainter& painter, const browser::MediaItem& item, const CellLook& look);
    static QString IconName(const browser::MediaItem& item, IconUse use);

private:
    // A picture at the size in which it is drawn, with what it was made from, so that the address stays its
    // own.
    struct Scaled {
        platform::BitmapHandle source;
        QSize size;
        QPixmap picture;
    };
    void DrawPicture(QPainter& painter, const platform::BitmapHandle& bitmap, const QRect& box);
    static void DrawIcon(QPainter& painter, const browser::MediaItem& item, const QRect& box);
    static void DrawName(QPainter& painter, const QString& name, const QRect& box);
    const QPixmap& ScaledPicture(const platform::BitmapHandle& bitmap, const QSize& pixels);

    QCache<const platform::Bitmap*, Scaled> cache;
};

// A bitmap's pixels as a picture that shares them; they live as long as it does.
QImage ImageOf(const platform::BitmapHandle& bitmap);

}  // namespace ui
