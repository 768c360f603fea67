// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTimeStampChoice: what is chosen in the dialog that changes time stamps, and which of its controls can be
// used, without its window.
#pragma once

namespace photo
{

enum class TimeSource {
    created = 0,  // the date the file was created
    now = 1,
    exif = 2,
    picked = 3,
};

class CTimeStampChoice
{
public:
    // With the date of the photographs when there is any, else with a picked one; both flags are off.
    explicit CTimeStampChoice(bool hasExifDates)
        : offersExif(hasExifDates), source(hasExifDates ? TimeSource::exif : TimeSource::picked)
    {
    }

    // A creation time cannot be set from itself: choosing `created` clears the flag for it.
    void Choose(TimeSource wanted)
    {
        source = wanted;
        if (source == TimeSource::created) {
            changeCreation = false;
        }
    }
    void ToggleCreation() { changeCreation = !changeCreation && CanChangeCreation(); }
    void ToggleModified() { changeModified = !changeModified; }

    TimeSource Source() const { return source; }
    bool ChangesCreation() const { return changeCreation; }
    bool ChangesModified() const { return changeModified; }
    bool OffersExif() const { return offersExif; }
    bool CanChangeCreation() const { return source != TimeSource::created; }
    bool CanPick() const { return source == TimeSource::picked; }
    bool CanApply() const { return changeModified || changeCreation; }

private:
    bool offersExif;
    TimeSource source;
    bool changeCreation = false;
    bool changeModified = false;
};

}  // namespace photo
