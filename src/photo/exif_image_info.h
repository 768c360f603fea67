// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ExifImageInfo: the facts of a camera's photo as one flat record.
//
// What the file does not tell stays 0. Texts end with a NUL, are cut to their room and are not checked to be
// UTF-8. Where each field comes from: docs/formats/exif.md.
#pragma once

namespace photo
{

// The names are those by which scripts know the fields.
// NOLINTBEGIN(readability-identifier-naming)
struct ExifImageInfo {
    char ExifVersion[5] = {};
    char CameraMake[32] = {};
    char CameraModel[40] = {};
    char DateTime[20] = {};  // when the photo was taken, "2004:05:17 10:22:31"
    int Height = 0;
    int Width = 0;
    int Orientation = 0;  // 1 to 8; 0 when unknown
    int IsColor = 0;
    int Process = 0;  // the marker of the frame header, 0xC0 to 0xCF
    int FlashUsed = 0;
    float FocalLength = 0;   // millimetres
    float ExposureTime = 0;  // seconds
    float ApertureFNumber = 0;
    float Distance = 0;  // metres
    float CCDWidth = 0;
    float ExposureBias = 0;
    int LightSource = 0;
    int MeteringMode = 0;
    int ExposureProgram = 0;
    int ISOequivalent = 0;
    int CompressionLevel = 0;
    float FocalplaneXRes = 0;
    float FocalplaneYRes = 0;
    float FocalplaneUnits = 0;  // in inches
    float XResolution = 0;
    float YResolution = 0;
    float ResolutionUnit = 0;  // in inches
    float Brightness = 0;
    char Comments[1000] = {};
    const unsigned char* ThumbnailPointer = nullptr;  // into the reader that filled the record
    int ThumbnailSize = 0;
    bool IsExif = false;
};
// NOLINTEND(readability-identifier-naming)

// A date as it was written: no zone, and nothing checked. The last three stay 0.
struct ExifDate {
    int second = 0;
    int minute = 0;
    int hour = 0;
    int day = 0;
    int month = 0;  // 1 to 12
    int year = 0;   // 2004
    int weekDay = 0;
    int yearDay = 0;
    int summerTime = 0;
    bool IsKnown() const { return year != 0 && day != 0; }
};

// The numbers of the record's DateTime, as far as they can be read.
ExifDate SplitDate(const ExifImageInfo& record);

}  // namespace photo
