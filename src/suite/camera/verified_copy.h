// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CVerifiedCopy: the copy of one file, out of sight until it is known to be right.
//
// Where the file system can, the copy has no name at all before GiveName, so that not even a kill leaves
// anything behind; elsewhere it stands in its folder under a hidden name (".kelvo-" and numbers), which the
// destructor removes. The steps are Copy, Verify, GiveName; after one that failed Failure says why. Stop, on
// any thread, makes the step in work fail soon.
#pragma once

#include "suite/camera/descriptor.h"

#include <atomic>
#include <cstdint>
#include <ctime>
#include <string>

namespace suite
{

class CVerifiedCopy
{
public:
    CVerifiedCopy(std::string sourcePath, std::string folder);
    ~CVerifiedCopy();
    CVerifiedCopy(const CVerifiedCopy&) = delete;
    CVerifiedCopy& operator=(const CVerifiedCopy&) = delete;

    // Shares the source's blocks where the file system can, else copies within the kernel, else through a
    // buffer. The bytes are on their way to the medium when it returns.
    bool Copy();
    // Waits until the bytes are on the medium, has the kernel forget what it holds of the copy in memory, and
    // compares what it reads then with the source, byte for byte.
    bool Verify();
    // Puts the copy at the path, or where that is taken at one with " (2)" and so on before its extension.
    bool GiveName(const std::string& path);

    void Stop() { stopped = true; }
    int Failure() const { return failure; }
    // Where GiveName has put it.
    const std::string& Path() const { return name; }
    std::uint64_t BytesCopied() const { return copied; }

private:
    bool Fail(int reason);
    bool OpenSource();
    bool OpenCopy();
    bool CopyInKernel();
    bool CopyThroughBuffer();
    void Advance(std::uint64_t bytes);
    int TryName(const std::string& path);

    std::string sourceFile;
    std::string folder;
    CDescriptor source;
    CDescriptor copy;
    timespec modified = {};
    std::string temporary;  // the hidden name, empty while there is none
    std::string name;
    int failure = 0;
    std::atomic<std::uint64_t> copied = 0;
    std::atomic<bool> stopped = false;
};

}  // namespace suite
