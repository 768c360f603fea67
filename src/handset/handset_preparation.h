// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Making a file fit for the handset: photos shrink into its screen, bitmaps and TIFF pictures become JPEG,
// MIDI files become SMAF. The source is never changed.
#pragma once

#include "platform/handset_link.h"

#include <string>
#include <vector>

namespace handset
{

constexpr int kScreenWidth = 128;
constexpr int kScreenHeight = 160;

struct PictureSize {
    int width = 0;
    int height = 0;
    bool operator==(const PictureSize&) const = default;
};

// The size at which a picture is sent: its own when the screen holds that, else the largest of its
// proportions that fits, cut to whole pixels, each side at least 1.
PictureSize FitScreen(PictureSize size);

// What a file is to the handset, by its name. A file of no kind that the handset knows counts as a photo.
platform::FileDataType DataTypeOf(const std::string& path);
bool IsRingTone(const std::string& path);
// Whether a ring tone is longer than the handset takes; such a one is never sent, whatever it would become.
bool IsTooLong(const std::string& path);

enum class Change { none, fitted, jpeg, smaf };

// The file to send in place of another.
struct PreparedFile {
    std::string path;          // the source itself for Change::none
    bool isTemporary = false;  // goes with CHandsetPreparation::Remove
    Change change = Change::none;
    PictureSize size;                  // of a picture that was fitted
    bool isReady = true;               // false: it could not be made, and `problem` says why
    std::string problem;               // also why a tune stays what it is; in English
    std::vector<std::string> leftOut;  // what a tune lost, in English
};

enum class JpegPlace {
    besideSource,  // where its name is free there, it stays there
    temporary,
};

// Makes one file after the other; one thread. Each call takes as long as the file wants. Files that are made
// have the source's base name, in a folder of the object's own below the system's temporary folder.
class CHandsetPreparation
{
public:
    PreparedFile Prepare(const std::string& source, JpegPlace place);
    static void Remove(const PreparedFile& file);

private:
    PreparedFile PrepareTune(const std::string& source);
    PreparedFile PreparePicture(const std::string& source, JpegPlace place);
    PreparedFile AtTemporaryPlace(const std::string& source, const char* ending, Change change);

    std::string folder;  // made when it is first needed
};

}  // namespace handset
