// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The record file of a folder that received files from the handset: which file is which on the handset.
//
// Byte layout: docs/formats/handset-records.md. Whatever the file holds, a lookup reads it in small pieces
// and at most kMostRecords records of it. A killed or failed addition leaves every earlier record whole and
// readable; what it may leave of its own at the end matches no name and goes with the next addition.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace handset
{

constexpr std::size_t kRecordNameSize = 260;  // bytes of the name field; the last is always 0 in our records
constexpr std::size_t kRecordSize = kRecordNameSize + 4;
constexpr std::size_t kMostRecords = 1'000'000;

// The record file of the folder that the file is in.
std::string RecordFileOf(const std::string& path);

// Makes an empty record file where there is none, and leaves one that is there as it is.
bool MakeRecordFile(const std::string& recordFile);

// The index on the handset of the first record of that name, case and all; 0 when there is none, or when the
// file cannot be opened or read.
int FindHandsetIndex(const std::string& recordFile, std::string_view fileName);

// Adds a record and waits until it is on the medium; makes the file when it is missing. A name that has a
// record already keeps its place and takes the new index, since a lookup ends at the first. False, leaving
// the file as it was, for a name that is no file's name or is longer than 259 bytes, for an index of 0, and
// when the file cannot be written.
bool AddHandsetRecord(const std::string& recordFile, const std::string& fileName, int index);

}  // namespace handset
