// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFileReplacement: a file written out of sight that takes its name only when it is whole.
//
// Where the file system can, the file has no name at all before that, so that not even a kill leaves
// anything behind; elsewhere it stands beside the target under a short hidden name (".kelvo-" and twelve hex
// digits) and the destructor removes it. Either way the target holds its old bytes until Commit puts the new
// ones, already on the medium unless told otherwise, in their place in one step.
#pragma once

#include "platform_linux/handle.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>

namespace platform_linux
{

enum class ExistingTarget { replace, fail };

// When a new file's bytes reach the medium: before it takes its name, or when the system gets to it.
enum class Durability { beforeNamed, later };

// Told the bytes copied since the last call; false stops the copy, which then fails with ECANCELED.
using CopyProgress = std::function<bool(std::uint64_t bytes)>;

class CFileReplacement
{
public:
    // Null when the target cannot be written: its folder, a write-protected or special file in its place.
    // With `replace` links are followed, and the new file takes over the mode, the owner and the recorded
    // creation time of the old one; `mode` (less the umask) is for a file that is new.
    static std::unique_ptr<CFileReplacement> Start(const std::string& target, mode_t mode,
                                                   ExistingTarget existing);
    ~CFileReplacement();
    CFileReplacement(const CFileReplacement&) = delete;
    CFileReplacement& operator=(const CFileReplacement&) = delete;

    int Get() const { return file.Get(); }
    bool Commit(Durability durability = Durability::beforeNamed);

private:
    CFileReplacement() = default;
    bool CheckTarget(const std::string& target, mode_t mode);
    bool OpenUnnamed(mode_t mode);
    bool OpenNamed(mode_t mode);
    bool TakeOver(const std::string& target);
    bool GiveName();
    bool PutInPlace();

    ExistingTarget policy = ExistingTarget::replace;
    bool targetIsThere = false;
    CHandle folder;
    CHandle file;
    std::string name;       // of the target, in `folder`
    std::string temporary;  // the hidden name, empty while there is none
};

// Renames within one file system unless the new name is taken.
bool RenameNoReplace(int fromFolder, const std::string& from, int toFolder, const std::string& to);

// Copies from the current positions to the end of `from`: shared blocks where the file system can, else
// within the kernel, else through a buffer.
bool CopyBytes(int from, int to, const CopyProgress& progress = {});
// Copies bytes, permission bits and modification time of a regular file.
bool CopyRegular(const std::string& source, const std::string& target, ExistingTarget existing,
                 Durability durability = Durability::beforeNamed, const CopyProgress& progress = {});

}  // namespace platform_linux
