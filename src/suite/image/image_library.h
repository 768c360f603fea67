// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSuiteImageLibrary: the suite's image and video library on Linux.
//
// What a file holds is told from its content. JPEG is read in the program itself; other formats and video
// clips by modules that are loaded when the first such file is opened, and are no pictures where their
// module is missing. May be used from several threads; a source it opened belongs to one thread at a time.
#pragma once

#include "platform/image.h"
#include "suite/image/input_file.h"
#include "suite/image/module_loader.h"

#include <memory>
#include <string>

namespace suite
{

class CSuiteImageLibrary : public platform::CImageLibrary
{
public:
    // A clip gives a frame.
    std::unique_ptr<platform::CImageSource> Open(const std::string& path) override;
    bool SaveJpeg(const platform::Bitmap& bitmap, const std::string& path, int quality) override;
    // Handset images are told by content like any other; one in a format that is not known fails. An
    // existing "Src0.jpg" is left alone and the call fails.
    bool Src2Jpg(const std::string& path, int flag) override;
    std::unique_ptr<platform::CImageSource> OpenVideoFrame(const std::string& path) override;

private:
    std::unique_ptr<platform::CImageSource> OpenPicture(CInputFile file, PictureKind kind);

    CModuleLoader png{"kelvo-png.so"};
    CModuleLoader formats{"kelvo-formats.so"};
    CModuleLoader video{"kelvo-video.so"};
};

}  // namespace suite
