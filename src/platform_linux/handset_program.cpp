// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/handset_program.h"

#include "platform/file_system.h"
#include "platform/services.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

extern char** environ;

namespace platform_linux
{

namespace
{

constexpr int kPatience = 20'000;  // milliseconds

bool IsProgram(const std::string& path)
{
    struct stat facts {
    };
    return stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

CHandsetProgram::~CHandsetProgram()
{
    End();
}

std::string CHandsetProgram::TerminalOf(const std::string& device)
{
    if (!IsProgram(device))
        return device;
    if (!terminal.empty())
        return terminal;
    const std::string folder = platform::Os().files->GetTempPath();
    const std::string link = folder + "/handset";
    if (folder.empty() || !Start(device, link) || !IsReady()) {
        End();
        return device;
    }
    return terminal = link;
}

bool CHandsetProgram::Start(const std::string& program, const std::string& link)
{
    std::array<int, 2> in = {};
    std::array<int, 2> out = {};
    if (pipe2(in.data(), O_CLOEXEC) != 0)
        return false;
    input = in[1];
    if (pipe2(out.data(), O_CLOEXEC) != 0) {
        close(in[0]);
        return false;
    }
    output = out[0];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // An interruption from the keyboard is this process's to deal with.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    std::array<std::string, 3> words = {program, "--port", link};
    std::array<char*, 4> arguments = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    const int error =
        posix_spawn(&process, program.c_str(), &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(in[0]);
    close(out[1]);
    if (error != 0)
        process = 0;
    return error == 0;
}

bool CHandsetProgram::IsReady() const
{
    std::string said;
    pollfd waiting = {output, POLLIN, 0};
    while (said.find('\n') == std::string::npos) {
        char letter = 0;
        if (poll(&waiting, 1, kPatience) != 1 || read(output, &letter, 1) != 1)
            return false;
        said += letter;
    }
    return said.starts_with("ready");
}

void CHandsetProgram::End()
{
    for (int* end : {&input, &output}) {
        if (*end >= 0)
            close(*end);
        *end = -1;
    }
    if (process > 0)
        waitpid(process, nullptr, 0);
    process = 0;
}

}  // namespace platform_linux
