// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Other processes for tests: a fork of the test that runs a piece of code and ends.
#pragma once

#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>

namespace tests
{

// A child that runs `work` and ends with its result; killed at the latest by the destructor.
class CChild
{
public:
    // `work` gets a function that tells the parent of one more step done.
    explicit CChild(const std::function<int(const std::function<void()>& step)>& work);
    ~CChild() { Kill(); }
    CChild(const CChild&) = delete;
    CChild& operator=(const CChild&) = delete;

    // Waits for `steps` further steps; false when the child ended before.
    bool Await(int steps);
    void Kill();
    // The child's result once it has ended, -1 after a signal.
    int Wait();

private:
    pid_t process = 0;
    int steps = -1;
};

// The result of `work` in a child.
int RunInChild(const std::function<int()>& work);
// The same without the rights of root, whom no mode holds back.
int RunAsPlainUser(const std::function<int()>& work);
// The same with a folder on a file system of 256 KiB; nothing when this machine does not let us mount one.
std::optional<int> RunOnSmallDisk(const std::function<int(const std::string& folder)>& work);

// Sets variables of the environment for the length of a scope; an empty value unsets one.
class CEnvironment
{
public:
    explicit CEnvironment(const std::map<std::string, std::string>& values)
    {
        for (const auto& [name, value] : values) {
            const char* old = std::getenv(name.c_str());
            former[name] = old ? old : "";
            Set(name, value);
        }
    }
    ~CEnvironment()
    {
        for (const auto& [name, value] : former)
            Set(name, value);
    }
    CEnvironment(const CEnvironment&) = delete;
    CEnvironment& operator=(const CEnvironment&) = delete;

private:
    static void Set(const std::string& name, const std::string& value)
    {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
    std::map<std::string, std::string> former;
};

}  // namespace tests
