// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMsdModule: the suite's library for a camera's store that is attached as a mass-storage device.
//
// One instance a program. The order of calls: UnInitMsd, InitMsd, then counts, copies and deletions,
// UnInitMsd. What InitMsd found is held until UnInitMsd: positions count from 1 within a kind and stay what
// they are, whatever happens to the device. Zero means failure, anything else success. One thread at a time,
// but for Abort and Survey. Nothing but DeleteMsdFile ever writes to the store.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform
{

// The kinds of files, as the library numbers them.
inline constexpr int kMsdPhoto = 1;
inline constexpr int kMsdClip = 2;
inline constexpr int kMsdAll = 3;

enum class MsdFailure {
    other,
    storeGone,  // the camera or card is no longer there
    diskFull,   // where the copies go
};

// What a connection would find.
struct MsdSurvey {
    std::string root;   // where the store is mounted
    std::string label;  // what the place is called
    int photos = 0;
    int clips = 0;
    bool isCut = false;  // there is more than was counted
};

class CMsdModule
{
public:
    // Told now and then how much of the file is copied, and of how much, in kilobytes.
    using Progress = void (*)(int done, int all);

    virtual ~CMsdModule() = default;

    // Drops the connection and all that was held for it; copies that nobody has taken are gone.
    virtual void UnInitMsd() = 0;
    // Looks for the store that `deviceFile` describes (docs/formats/dev-ini.md) and lists its files of the
    // kind. `drive` is 0: the library finds the device itself.
    virtual int InitMsd(const std::string& deviceFile, char drive, int kind) = 0;
    // How many files of the kind there are; 1 as a result unless there is no connection.
    virtual int GetFileCount(int kind, int* count) = 0;
    // Copies one file to `path`, which ends in a dot; the extension of the store's file is added. What is
    // there is never overwritten: a name that is taken gets a number. The file appears whole, with the times
    // of its source, once its bytes are on the medium and were found equal to the source's, or not at all.
    // After the last file of the store all copies are on the medium with their names. `device` is 1.
    virtual int UploadFile(int device, unsigned number, unsigned kind, const std::string& path,
                           Progress progress) = 0;
    // Ends the copy in work, which fails, and all later ones until the next InitMsd; leaves nothing of them.
    // May be called on any thread. `reason` is 0 when the user gave up, 1 when the run is ended otherwise.
    virtual void Abort(int reason) = 0;
    // Deletes file `number` of the kind, or all for 0: those that InitMsd listed and that have not changed
    // since, never a folder. Zero when any of them is still there.
    virtual int DeleteMsdFile(int kind, int number) = 0;

    // Where the latest successful UploadFile has put the file.
    virtual std::string UploadedPath() const = 0;
    // Why the latest call failed, in plain words, and of what sort it was.
    virtual std::string LastError() const = 0;
    virtual MsdFailure LastFailure() const = 0;
    // Files of the store that cannot be read, and folders that cannot be listed: they are not counted.
    virtual std::vector<std::string> LeftOut() const = 0;

    // Looks at the store that InitMsd would take, without a connection and whatever else is going on: any
    // thread. Counts no further than a look may take. None when there is nothing to copy.
    virtual std::optional<MsdSurvey> Survey(const std::string& deviceFile) const = 0;
};

}  // namespace platform
