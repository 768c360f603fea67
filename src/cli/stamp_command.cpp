// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/string_table.h"
#include "cli/commands.h"
#include "cli/job_host.h"
#include "photo/local_time.h"
#include "photo/time_stamp_change.h"

#include <fmt/format.h>

#include <cstdio>

namespace cli
{

namespace
{

struct StampArguments {
    bool created = false;
    bool modified = false;
    std::string from;
    std::vector<std::string> files;
};

bool ReadDateTime(const std::string& text, photo::ExifDate& date)
{
    int end = 0;
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &date.year, &date.month,
                                 &date.day, &date.hour, &date.minute, &date.second, &end);
    return read == 6 && static_cast<std::size_t>(end) == text.size() &&
           photo::LocalToFileTime(date).has_value();
}

bool IsSource(const std::string& text)
{
    photo::ExifDate ignored;
    return text == "created" || text == "now" || text == "exif" || ReadDateTime(text, ignored);
}

photo::TimeStampRequest RequestFor(CContext& context, const StampArguments& arguments)
{
    photo::TimeStampRequest request;
    request.files = AbsolutePaths(arguments.files);
    request.changeCreation = arguments.created;
    request.changeModified = arguments.modified;
    request.journal = context.Folders().JournalFolder();
    if (arguments.from == "created") {
        request.source = photo::TimeSource::created;
    } else if (arguments.from == "exif") {
        request.source = photo::TimeSource::exif;
        request.dated = photo::FilesWithDate(request.files, [] { return Interruption() == 0; });
    } else if (ReadDateTime(arguments.from, request.picked)) {
        request.source = photo::TimeSource::picked;
    }
    return request;
}

void RunStamp(CContext& context, const StampArguments& arguments)
{
    context.Store();  // settles what was left in the journal
    const photo::TimeStampRequest request = RequestFor(context, arguments);
    CJobHost host(context, request.files.size());
    const photo::TimeStampReport report = photo::ChangeTimeStamps(request, host);
    for (const platform::FileProblem& problem : report.problems) {
        context.Fail(problem.path, WhyNot(problem));
    }
    Json message = nullptr;
    if (report.hasFailed) {
        message = app::Strings().LoadString(platform::StringId::stampReadOnly);
        context.Fail("stamp", message.get<std::string>());
    }
    context.PrintJson({{"changed", report.changed}, {"skipped", report.skipped}, {"message", message}});
    context.PrintReport(fmt::format("changed {}, skipped {}", report.changed, report.skipped));
}

}  // namespace

void AddStampCommand(CLI::App& parser, CContext& context)
{
    auto* stamp = parser.add_subcommand("stamp", "Change the time stamps of files");
    auto arguments = std::make_shared<StampArguments>();
    stamp->add_flag("--created", arguments->created, "The creation time");
    stamp->add_flag("--modified", arguments->modified, "The time of the last change");
    stamp
        ->add_option("--from", arguments->from,
                     "created, now, exif, or a date and time as yyyy-MM-dd HH:mm:ss")
        ->required()
        ->check(CLI::Validator([](std::string& text) { return IsSource(text) ? "" : "no such source"; },
                               "SOURCE"));
    stamp->add_option("FILE", arguments->files, "The files")->required();
    stamp->callback([&context, arguments] {
        if (!arguments->created && !arguments->modified) {
            throw CLI::ValidationError("--created or --modified is needed");
        }
        if (arguments->created && arguments->from == "created") {
            throw CLI::ValidationError("a creation time cannot be set from itself");
        }
        RunStamp(context, *arguments);
    });
}

}  // namespace cli
