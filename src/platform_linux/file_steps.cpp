// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/file_steps.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_operations.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/paths.h"
#include "platform_linux/trash.h"
#include "platform_linux/tree_removal.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

using platform::FileFailure;
using platform::FileOperation;

// "link/" would name what the link leads to.
std::string WithoutSlash(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

bool IsNamed(const std::string& path)
{
    const std::string_view name = NameOf(path);
    return !name.empty() && name != "." && name != "..";
}

bool Run(const platform::FileStep& step, COperationLog& log, std::string& place)
{
    constexpr CopyRules kRules{false, LinkCopy::verbatim, ExistingFolder::fail, Durability::later};
    switch (step.operation) {
    case FileOperation::copy:
        log.Measure(step.source);
        return CopyTree(step.source, step.target, kRules, &log);
    case FileOperation::rename:
        return log.Advance() && MoveTree(step.source, step.target, &log);
    case FileOperation::remove:
        return RemoveTree(AT_FDCWD, step.source, &log);
    case FileOperation::removeEmpty:
        return log.Advance() && (rmdir(Native(step.source)) == 0 || Fail());
    case FileOperation::trash:
        return log.Advance() && MoveToTrash(step.source, &place);
    case FileOperation::restore:
        return log.Advance() && RestoreFromTrash(step.source, step.target);
    case FileOperation::move:
        break;
    }
    return Fail(EINVAL);
}

// The kind of the failure that ended the whole step.
FileFailure StepFailure(const platform::FileStep& step, int reason)
{
    const bool hasTarget = !step.target.empty();
    if (reason == EEXIST && hasTarget && IsSameEntry(step.source, step.target))
        return FileFailure::itself;
    if ((reason == EEXIST || reason == EINVAL) && hasTarget && IsInside(step.target, step.source))
        return FileFailure::intoItself;
    if (reason == EINVAL && hasTarget)
        return FileFailure::badName;
    if (reason == ENOTSUP && step.operation == FileOperation::trash)
        return FileFailure::noTrash;
    if (reason == ENOTEMPTY)
        return FileFailure::changed;
    return FailureOf(reason);
}

bool IsTaken(const platform::FileStep& step)
{
    return !step.target.empty() && EntryAt(step.target).has_value();
}

}  // namespace

std::optional<platform::EntryFacts> EntryAt(const std::string& path)
{
    struct stat facts {
    };
    if (lstat(Native(path), &facts) != 0) {
        Fail();
        return std::nullopt;
    }
    return platform::EntryFacts{
        {facts.st_dev, facts.st_ino, static_cast<std::uint64_t>(facts.st_size), ModifiedNanoseconds(facts)},
        S_ISDIR(facts.st_mode)};
}

platform::FileStepResult DoStep(platform::FileStep step)
{
    step.source = WithoutSlash(std::move(step.source));
    step.target = WithoutSlash(std::move(step.target));
    COperationLog log(step.progress);
    platform::FileStepResult result;
    const bool wasTaken = IsTaken(step);
    const bool isBlocked =
        wasTaken && (step.operation == FileOperation::copy || IsSameEntry(step.source, step.target));
    if (!IsNamed(step.source) || (!step.target.empty() && !IsNamed(step.target)))
        Fail(EINVAL);
    else if (isBlocked)
        Fail(EntryAt(step.source) ? EEXIST : LastFailure());
    else
        result.done = Run(step, log, result.target);
    const int reason = result.done ? 0 : LastFailure();
    result.problems = log.TakeProblems();
    if (reason != 0 && result.problems.empty()) {
        Fail(reason);
        result.problems.push_back({step.source, StepFailure(step, reason), LastFailureText()});
    } else if (reason != 0 && result.problems.size() == 1 && result.problems[0].path == step.source) {
        result.problems[0].failure = StepFailure(step, reason);
    }
    // What a copy or a move has put at the new name, were it only a part.
    if (result.target.empty() && (result.done || (!wasTaken && IsTaken(step))))
        result.target = step.target;
    return result;
}

}  // namespace platform_linux
