// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CQtPictureSource: an opened BMP, TIFF, GIF or WebP, read by Qt's image plugins.
//
// Needs no application object. Animations give their first frame. A picture is decoded anew by each Render,
// half a gigabyte at most; WebP at the size asked for, the others whole.
#pragma once

#include "platform/image.h"
#include "suite/image/input_file.h"
#include "suite/image/picture_kind.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <memory>

namespace suite
{

class CQtPictureSource : public platform::CImageSource
{
public:
    static std::unique_ptr<platform::CImageSource> Open(CInputFile file, PictureKind kind);

    int Width() const override { return size.width; }
    int Height() const override { return size.height; }
    platform::BitmapHandle Render(int width, int height) override;
    // Of these formats, only the values of TIFF are read.
    std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t tag) override;

private:
    CQtPictureSource(CInputFile opened, PictureKind pictureKind) : kind(pictureKind), input(std::move(opened))
    {
    }
    // Looks at the header.
    bool Open();
    bool Prepare(QFile& file, QImageReader& reader) const;

    PictureKind kind;
    CInputFile input;
    int orientation = 1;
    platform::Extent stored;
    platform::Extent size;
};

}  // namespace suite
