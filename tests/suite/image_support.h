// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the image library share: the library itself, the samples, and ways to look at pixels.
#pragma once

#include "suite/image/image_library.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "support/test_file_system.h"

#include <gtest/gtest.h>
#include <string>

class CImageTest : public ::testing::Test
{
protected:
    CImageTest() : guard(WithImages()) {}

    static std::string Sample(const std::string& name) { return KELVO_SAMPLES + name; }

    suite::CSuiteImageLibrary library;
    support::CTempFolder folder;
    support::CTestFileSystem files;

private:
    platform::Services WithImages()
    {
        platform::Services services;
        services.files = &files;
        services.images = &library;
        return services;
    }
    support::CServicesGuard guard;
};

// A picture with detail at every scale, the same for the same `seed`.
platform::Bitmap Landscape(int width, int height, unsigned seed = 1);

// Each pixel the mean of the whole pixels that it covers.
platform::Bitmap Mean(const platform::Bitmap& whole, int width, int height);

// Mean difference of the colours, 0 to 255; -1 when the sizes differ or one is missing.
double MeanDifference(const platform::Bitmap* a, const platform::Bitmap* b);

// The colours in the middle of the four quarters, from left to right and top to bottom: R, G, B, W(hite),
// K (black), d(ark) and l(ight) grey, whichever is nearest, or "." when transparent.
std::string Quarters(const platform::BitmapHandle& bitmap);

// The JPEG with an EXIF block put in: orientation, resolution 72/1, DateTimeOriginal.
std::string WithExif(const std::string& jpeg, int orientation, bool motorola);
