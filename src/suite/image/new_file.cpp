// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/new_file.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace suite
{
namespace
{

bool WriteAll(int descriptor, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t done = write(descriptor, bytes.data(), bytes.size());
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(done));
    }
    return true;
}

// File systems that know no exclusive rename know no hard links either, as a rule; there the name is looked
// at once more instead.
bool RenameToFreeName(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    return (errno == EINVAL || errno == ENOSYS) && !NameIsTaken(to) &&
           std::rename(from.c_str(), to.c_str()) == 0;
}

// An open file of a name that no other file had, in `folder` (which ends in a separator, or is empty).
int CreateTemporary(const std::string& folder, std::string& temporary)
{
    static std::atomic<unsigned> counter = 0;
    constexpr int kMostTries = 100;
    for (int i = 0; i < kMostTries; ++i) {
        temporary = folder + ".kelvo-" + std::to_string(getpid()) + '-' + std::to_string(counter++);
        const int descriptor = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST)
            return descriptor;
    }
    return -1;
}

}  // namespace

bool NameIsTaken(const std::string& path)
{
    struct stat facts = {};
    return lstat(path.c_str(), &facts) == 0;
}

bool WriteNewFile(const std::string& path, std::span<const std::byte> bytes)
{
    std::string temporary;
    const int descriptor = CreateTemporary(path.substr(0, path.find_last_of('/') + 1), temporary);
    if (descriptor < 0)
        return false;
    const bool isWritten = WriteAll(descriptor, bytes);
    const bool isClosed = close(descriptor) == 0;
    if (isWritten && isClosed && RenameToFreeName(temporary, path))
        return true;
    unlink(temporary.c_str());
    return false;
}

}  // namespace suite
