// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// COperationLog: what one file operation tells while it runs and what it could not do.
#pragma once

#include "platform/shell.h"

namespace platform_linux
{

class COperationLog
{
public:
    explicit COperationLog(std::function<bool(std::uint64_t done, std::uint64_t all)> progress = {})
        : tell(std::move(progress))
    {
    }
    // Takes the number of bytes below `path` for those to do.
    void Measure(const std::string& path);
    // False, with ECANCELED as the failure, once the operation is to stop.
    bool Advance(std::uint64_t bytes = 0);
    // Notes that `path` failed for the latest reason of this thread. Always false.
    bool Failed(const std::string& path);
    bool IsCancelled() const { return cancelled; }
    bool HasProblems() const { return !problems.empty(); }
    std::vector<platform::FileProblem> TakeProblems() { return std::move(problems); }

private:
    std::function<bool(std::uint64_t done, std::uint64_t all)> tell;
    std::vector<platform::FileProblem> problems;
    std::uint64_t bytesDone = 0;
    std::uint64_t bytesToDo = 0;
    bool cancelled = false;
};

// The kind of failure that a number of the system stands for.
platform::FileFailure FailureOf(int error);

}  // namespace platform_linux
