// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process.h"

#include "support/temp_folder.h"

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tests
{

CChild::CChild(const std::function<int(const std::function<void()>& step)>& work)
{
    int ends[2];
    if (pipe(ends) != 0 || (process = fork()) < 0)
        std::abort();
    if (process == 0) {
        close(ends[0]);
        _exit(work([&] { (void)!write(ends[1], "x", 1); }));
    }
    close(ends[1]);
    steps = ends[0];
}

bool CChild::Await(int count)
{
    char byte = 0;
    while (count > 0 && read(steps, &byte, 1) == 1)
        --count;
    return count == 0;
}

void CChild::Kill()
{
    if (process > 0)
        kill(process, SIGKILL);
    (void)Wait();
}

int CChild::Wait()
{
    int status = 0;
    if (process > 0 && waitpid(process, &status, 0) == process)
        close(steps);
    process = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int RunInChild(const std::function<int()>& work)
{
    return CChild([&](const auto&) { return work(); }).Wait();
}

int RunAsPlainUser(const std::function<int()>& work)
{
    constexpr unsigned kNobody = 65534;
    return RunInChild([&] {
        const bool isPlain = geteuid() != 0 || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
        return isPlain ? work() : 100;
    });
}

std::optional<int> RunOnSmallDisk(const std::function<int(const std::string& folder)>& work)
{
    constexpr int kNoMount = 101;
    const support::CTempFolder folder;
    const int result = RunInChild([&] {
        const bool isMounted = unshare(CLONE_NEWNS) == 0 &&
                               mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                               mount("none", folder.Path().c_str(), "tmpfs", 0, "size=256k") == 0;
        return isMounted ? work(folder.Path()) : kNoMount;
    });
    return result == kNoMount ? std::nullopt : std::optional(result);
}

}  // namespace tests
