// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CUpDownLoad: files sent to, fetched from and deleted on a handset at a serial port; CHandsetLink makes
// them.
//
// One object per operation, used by one thread: SetConnectPort, then ATInit, then the operation. All objects
// of one port share one connection, which ends with the last of them; a run of many files therefore holds one
// object from its start to its end. Whatever needs the connection while there is none begins with ATInit;
// when nobody answered that, all but another ATInit fail at once.
//
// Every call returns within its time-outs, whatever the handset does: an unplugged cable is noticed within a
// second, silence within 30. Results are those of HandsetResult, but for GetFileCount; a result that is
// neither 1 nor -2 is a failure, after which the connection is made anew with the next operation. Nothing of
// a transfer that failed stays on this side; what a handset keeps of one goes before the next sending of that
// file.
#pragma once

#include "platform/services.h"

#include <memory>
#include <string>

namespace platform
{

// What a file is to the handset; the numbers are those of the files and settings.
enum class FileDataType : int {
    animation = 1,
    mainWallpaper = 2,
    subWallpaper = 3,
    photo = 6,  // of "My Album"
    ring = 7,
    java = 8,  // a descriptor or its archive
    frame = 9,
};

enum HandsetResult : int {
    kHandsetDone = 1,
    kHandsetFailed = 0,
    kHandsetFull = -2,  // no room for the file: on the handset when sending, on this side when fetching
    kHandsetCancelled = -3,
};

// One file of one transfer.
struct tag_DataType {  // NOLINT(readability-identifier-naming)
    FileDataType type = FileDataType::photo;
    std::string path;  // the file to send; not used for fetching
    std::string
        archive;       // of a Java descriptor to send: what it describes; sent before it, under its own name
    int position = 0;  // which of the category's files to fetch, from 0, in the order of their names
};

// The record file of a folder that receives files from the handset.
constexpr const char* kHandsetRecordFile = "mobilefile.dbs";

class CUpDownLoad
{
public:
    virtual ~CUpDownLoad() = default;

    // Remembers the port, a number from 1; ATInit finds out which line it is.
    virtual int SetConnectPort(unsigned port) = 0;
    // Opens the line and asks the handset for a sign of life, then for its maker and model. Takes up to 10 s.
    virtual int ATInit() = 0;
    // The file that StartUpload or StartDownload is about.
    virtual int SetDataType(const tag_DataType& file) = 0;
    // Sends the file under its own name. `code` becomes the handset's answer as it came over the line, or 0.
    virtual int StartUpload(int& code) = 0;
    // The full path of the record file of the folder that is to receive the file.
    virtual int SetDatabaseName(const std::string& recordFile) = 0;
    // Fetches the file into the record file's folder, whole or not at all, and adds its record. Its name
    // comes from the handset, made fit for a file name; a file that is there already is never replaced.
    virtual int StartDownload(int& code) = 0;
    // Where the file of the latest StartDownload is; empty when there is none.
    virtual std::string ReceivedPath() = 0;
    // How many files of the category the handset holds; below 0 when it could not be told.
    virtual int GetFileCount(FileDataType type) = 0;
    // Deletes the handset's file that has this index in a record. 0 stands for no file, and fails.
    virtual int DeleteFileMobile(FileDataType type, int index) = 0;

    // Ends the running or the next transfer with kHandsetCancelled. For any thread and from the progress
    // function.
    virtual void Abort() = 0;

    // As ATInit heard it; empty when the handset does not say.
    virtual std::string Manufacturer() = 0;
    virtual std::string Model() = 0;
    // Where the failure of the latest operation comes from, in English, for a log or a details line: the
    // line's path and the system's error, or the handset's answer. Empty after a success.
    virtual std::string LastError() = 0;
};

class CHandsetLink
{
public:
    virtual ~CHandsetLink() = default;
    virtual std::unique_ptr<CUpDownLoad> NewUpDownLoad() = 0;
    // The function that running transfers tell their percentage (0 to 100, never falling within one), on the
    // thread of the transfer; null for none.
    virtual void SetProgressFunc(void (*progress)(int percent)) = 0;
};

inline void SetProgressFunc(void (*progress)(int percent))
{
    if (Os().handset)
        Os().handset->SetProgressFunc(progress);
}

}  // namespace platform
