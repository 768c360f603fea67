// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/formats/heif_source.h"
#include "suite/image/formats/qt_picture_source.h"
#include "suite/image/picture_module.h"

KELVO_PICTURE_MODULE platform::CImageSource* KelvoOpenPicture(int descriptor, suite::PictureKind kind)
{
    suite::CInputFile file(descriptor);
    if (kind == suite::PictureKind::heif) {
#ifdef KELVO_HAVE_LIBHEIF
        return suite::CHeifSource::Open(std::move(file)).release();
#else
        return nullptr;
#endif
    }
    return suite::CQtPictureSource::Open(std::move(file), kind).release();
}
