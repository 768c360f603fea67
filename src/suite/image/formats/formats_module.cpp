// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/formats/heif_source.h"
#include "suite/image/formats/qt_picture_source.h"
#include "suite/image/picture_module.h"

#include <mutex>
#include <tiffio.h>

KELVO_PICTURE_MODULE platform::CImageSource* KelvoOpenPicture(int descriptor, suite::PictureKind kind)
{
    // By itself libtiff prints to standard error what it finds in a broken file.
    static std::once_flag silenced;
    std::call_once(silenced, [] {
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
    });
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
