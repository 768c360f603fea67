// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/temp_folder.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_lock.h"
#include "platform_linux/folder_reader.h"
#include "platform_linux/paths.h"
#include "platform_linux/private_folder.h"
#include "platform_linux/tree_removal.h"

#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

constexpr std::string_view kPrefix = "temp-";
constexpr char kLockName[] = ".lock";
constexpr int kPatience = 2000;  // ms; the others only make or sweep folders meanwhile

CHandle OpenLock(const std::string& folder, int more)
{
    return CHandle(open(Join(folder, kLockName).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | more, 0600));
}

// Ends with the lock's file closed: some file systems keep an open file's folder from going.
bool IsAlive(const std::string& folder)
{
    const CHandle lock = OpenLock(folder, 0);
    return lock.IsOpen() && !LockDescriptor(lock.Get(), platform::LockKind::exclusive, 0);
}

// Removes the folders whose processes are gone. Making a folder and sweeping exclude each other by the lock
// of `base`, so that none is seen between its making and its locking.
void Sweep(const std::string& base)
{
    const DirHandle folders = OpenFolder(AT_FDCWD, base, 0);
    while (const dirent* entry = folders ? NextEntry(folders.get()) : nullptr) {
        if (!std::string_view(entry->d_name).starts_with(kPrefix))
            continue;
        if (!IsAlive(Join(base, entry->d_name)))
            (void)RemoveTree(dirfd(folders.get()), entry->d_name);
    }
}

}  // namespace

std::string CTempFolder::Path()
{
    const std::lock_guard guard(mutex);
    if (!path.empty())
        return path;
    const std::string base = PrivateRuntimeFolder();
    CHandle baseLock;
    if (!base.empty()) {
        baseLock = OpenLock(base, O_CREAT);
        if (baseLock.IsOpen() && LockDescriptor(baseLock.Get(), platform::LockKind::exclusive, kPatience))
            Sweep(base);
    }
    std::string made = base.empty() ? "/tmp/kelvo-XXXXXX" : Join(base, std::string(kPrefix) + "XXXXXX");
    if (!mkdtemp(made.data())) {
        Fail();
        return {};
    }
    alive = OpenLock(made, O_CREAT);
    if (alive.IsOpen())
        (void)LockDescriptor(alive.Get(), platform::LockKind::exclusive, 0);
    owner = getpid();
    path = made;
    return path;
}

CTempFolder::~CTempFolder()
{
    alive = CHandle();
    if (!path.empty() && owner == getpid())
        (void)RemoveTree(AT_FDCWD, path);
}

}  // namespace platform_linux
