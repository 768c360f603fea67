// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CJobHost: a job on files as a command sees it.
#pragma once

#include "browser/file_job.h"
#include "cli/context.h"

namespace cli
{

// Shows a progress bar, and stops the job when the program is interrupted. Nothing is replaced.
class CJobHost final : public browser::CFileJobHost
{
public:
    CJobHost(const CContext& context, std::size_t items) : bar(context, items) {}

    browser::ClashReply AskAboutClash(const browser::Clash&) override
    {
        return {browser::ClashAnswer::skip, true};
    }
    bool Progress(const browser::FileJobProgress& progress) override
    {
        bar.ShowDone(progress.item);
        return Interruption() == 0;
    }

private:
    CProgressBar bar;
};

// The line for a problem's kind, or its reason where the kind is none that has a line of its own.
std::string WhyNot(const platform::FileProblem& problem);

}  // namespace cli
