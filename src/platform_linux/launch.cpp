// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/launch.h"

#include "platform_linux/failure.h"
#include "platform_linux/handle.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>

namespace platform_linux
{

namespace
{

// Runs in a forked child: only calls that are safe there.
[[noreturn]] void RunDetached(char* const* words, int report)
{
    setsid();
    const pid_t child = fork();
    if (child > 0)
        _exit(0);
    if (child == 0) {
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        signal(SIGPIPE, SIG_DFL);
        const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
        dup2(null, STDIN_FILENO);
        dup2(null, STDOUT_FILENO);
        execvp(words[0], words);
    }
    const int reason = errno;
    (void)!write(report, &reason, sizeof reason);
    _exit(1);
}

}  // namespace

std::vector<std::string> SplitCommand(std::string_view command)
{
    std::vector<std::string> words;
    bool inWord = false;
    bool inQuotes = false;
    for (const char c : command) {
        if (c == '"') {
            inQuotes = !inQuotes;
        } else if (!inQuotes && (c == ' ' || c == '\t')) {
            inWord = false;
            continue;
        }
        if (!inWord)
            words.emplace_back();
        inWord = true;
        if (c != '"')
            words.back() += c;
    }
    return words;
}

bool Launch(std::vector<std::string> words)
{
    if (words.empty() || words.front().empty())
        return Fail(ENOENT);
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return Fail();
    const CHandle reading(ends[0]);
    CHandle writing(ends[1]);
    const pid_t child = fork();
    if (child < 0)
        return Fail();
    if (child == 0)
        RunDetached(pointers.data(), writing.Get());
    writing = CHandle();
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    // Closed without a word once the program runs; else the reason why it does not.
    int reason = 0;
    ssize_t count = 0;
    while ((count = read(reading.Get(), &reason, sizeof reason)) < 0 && errno == EINTR) {
    }
    return count == 0 || Fail(reason);
}

}  // namespace platform_linux
