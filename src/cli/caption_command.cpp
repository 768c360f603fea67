// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/job_host.h"
#include "photo/caption_history.h"
#include "photo/caption_store.h"
#include "photo/local_time.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <cstdio>

namespace cli
{

namespace
{

struct CaptionArguments {
    std::vector<std::string> files;
    photo::TextChange change;
};

void RunGet(CContext& context, const CaptionArguments& arguments)
{
    Json items = Json::array();
    const auto texts = photo::CCaptionStore(context.Store()).Get(AbsolutePaths(arguments.files));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string& path = arguments.files[i];
        const photo::PhotoTexts& text = texts[i];
        if (!platform::Os().files->FindFirstFile(AbsolutePath(path))) {
            context.Fail(path, platform::Os().files->LastError());
            continue;
        }
        items.push_back({{"path", path},
                         {"caption", text.caption},
                         {"timeStamp", text.timeStamp},
                         {"secondText", text.secondText}});
        context.PrintLine(fmt::format("{}\t{}\t{}\t{}", path, text.caption, text.timeStamp, text.secondText));
    }
    context.PrintJson(items);
}

// "yyyy/MM/dd", or nothing to clear it.
bool IsTimeStamp(const std::string& text)
{
    photo::ExifDate date;
    int end = 0;
    const int read = std::sscanf(text.c_str(), "%4d/%2d/%2d%n", &date.year, &date.month, &date.day, &end);
    return text.empty() || (read == 3 && text.size() == 10 && end == 10 && photo::LocalToFileTime(date));
}

void RunSet(CContext& context, const CaptionArguments& arguments)
{
    const std::vector<std::string> paths = AbsolutePaths(arguments.files);
    CJobHost host(context, paths.size());
    const photo::CaptionReport report =
        photo::CCaptionStore(context.Store()).Set(paths, arguments.change, host);
    for (const platform::FileProblem& problem : report.problems) {
        context.Fail(problem.path, WhyNot(problem));
    }
    const photo::CCaptionHistory history(context.Folders().ThumbDbFolder());
    if (!history.Remember(arguments.change.caption.value_or(""), report.stored > 0)) {
        context.Fail("cap_db.ini", "the caption cannot be added to the history");
    }
    context.PrintJson({{"stored", report.stored}});
    context.PrintReport(fmt::format("stored {}", report.stored));
}

void RunHistory(CContext& context)
{
    const Json captions = photo::CCaptionHistory(context.Folders().ThumbDbFolder()).Captions();
    for (const auto& caption : captions) {
        context.PrintLine(caption.get<std::string>());
    }
    context.PrintJson(captions);
}

}  // namespace

void AddCaptionCommand(CLI::App& parser, CContext& context)
{
    auto* caption = parser.add_subcommand("caption", "The texts that photos carry");
    caption->require_subcommand(1);
    auto arguments = std::make_shared<CaptionArguments>();

    auto* get = caption->add_subcommand("get", "Caption, time stamp and second text of each photo");
    get->add_option("FILE", arguments->files, "The photos")->required();
    get->callback([&context, arguments] { RunGet(context, *arguments); });

    auto* set =
        caption->add_subcommand("set", "Change them; a text not given stays, an empty one is cleared");
    set->add_option("--caption", arguments->change.caption, "The caption");
    set->add_option("--stamp", arguments->change.timeStamp, "The day, yyyy/MM/dd")
        ->check(CLI::Validator(
            [](std::string& text) { return IsTimeStamp(text) ? "" : "no day as yyyy/MM/dd"; }, "DAY"));
    set->add_option("--second", arguments->change.secondText, "The second text");
    set->add_option("FILE", arguments->files, "The photos")->required();
    set->callback([&context, arguments] { RunSet(context, *arguments); });

    caption->add_subcommand("history", "The captions ever given")->callback([&context] {
        RunHistory(context);
    });
}

}  // namespace cli
