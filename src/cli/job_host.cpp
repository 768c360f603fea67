// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/job_host.h"

namespace cli
{

std::string WhyNot(const platform::FileProblem& problem)
{
    using platform::FileFailure;
    switch (problem.failure) {
    case FileFailure::missing:
        return "it is not there any more";
    case FileFailure::nameTaken:
        return "the name is taken";
    case FileFailure::itself:
        return "it has that name already";
    case FileFailure::changed:
        return "it has changed since";
    default:
        return problem.reason.empty() ? "it cannot be done" : problem.reason;
    }
}

}  // namespace cli
