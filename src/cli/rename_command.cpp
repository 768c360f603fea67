// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/string_table.h"
#include "browser/change_journal.h"
#include "browser/file_names.h"
#include "cli/commands.h"
#include "cli/file_time_text.h"
#include "cli/job_host.h"
#include "photo/batch_rename.h"
#include "photo/rename_pattern.h"
#include "platform/services.h"

#include <fmt/format.h>

namespace cli
{

namespace
{

struct RenameArguments {
    photo::CRenameFields fields;
    bool dryRun = false;
    std::vector<std::string> files;
};

// What is wrong with prefix and digits, or an empty text.
std::string Objection(photo::CRenameFields fields, const std::string& folder)
{
    switch (fields.Check(folder)) {
    case photo::RenameObjection::badCharacter:
        return app::Strings().LoadString(platform::StringId::renameBadCharacters);
    case photo::RenameObjection::tooLong:
        return app::Strings().LoadString(platform::StringId::renameTooLong);
    case photo::RenameObjection::badDigits:
        return "the number of digits is 1 to 16";
    case photo::RenameObjection::none:
        break;
    }
    return {};
}

browser::JobStores Stores(CContext& context)
{
    context.Store();  // settles what was left in the journal
    return {context.Application().DbFolder(), context.Folders().JournalFolder()};
}

// Each plan as it came out; `renamed` holds the new paths that are there now, in the order of the plan.
void PrintPlan(CContext& context, const RenameArguments& arguments,
               const std::vector<photo::PlannedRename>& plan, const std::vector<std::string>& renamed)
{
    Json items = Json::array();
    auto next = renamed.begin();
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const std::string& from = arguments.files[i];
        const bool keepsName = plan[i].to.empty();
        const std::size_t folderSize = from.size() - browser::FileName(from).size();
        const std::string to =
            keepsName ? from : from.substr(0, folderSize) + std::string(browser::FileName(plan[i].to));
        const bool done = next != renamed.end() && *next == plan[i].to;
        next += done ? 1 : 0;
        if (context.json) {
            items.push_back({{"from", from}, {"to", to}, {"renamed", done}});
        }
        if (done || (arguments.dryRun && !keepsName)) {
            context.PrintReport(fmt::format("{}\t{}", from, to));
        }
    }
    context.PrintJson(items);
}

void RunRename(CContext& context, const RenameArguments& arguments)
{
    const std::vector<std::string> files = AbsolutePaths(arguments.files);
    const auto plan = photo::PlanBatchRename(files, arguments.fields.Pattern());
    std::vector<std::string> renamed;
    if (!arguments.dryRun) {
        CJobHost host(context, files.size());
        const auto report = browser::RunFileJob(photo::BatchRenameJob(plan, Stores(context)), host);
        for (const platform::FileProblem& problem : report.problems) {
            context.Fail(problem.path, WhyNot(problem));
        }
        if (report.problemCount > report.problems.size()) {
            context.Fail("rename", fmt::format("{} more", report.problemCount - report.problems.size()));
        }
        renamed = report.results;
    }
    PrintPlan(context, arguments, plan, renamed);
}

const char* TaskName(const browser::UndoRecord& record)
{
    return record.task == browser::FileTask::changeTimes ? "stamp" : "rename";
}

void RunUndoList(CContext& context)
{
    context.Store();
    Json items = Json::array();
    for (const browser::JournalEntry& entry :
         browser::CChangeJournal(context.Folders().JournalFolder()).List()) {
        const std::string when = FileTimeText(entry.record.when);
        const char* task = TaskName(entry.record);
        items.push_back({{"number", entry.number},
                         {"task", task},
                         {"files", entry.record.steps.size()},
                         {"first", entry.record.name},
                         {"when", when}});
        context.PrintLine(fmt::format("{}\t{}\t{}\t{}\t{}", entry.number, when, task,
                                      entry.record.steps.size(), entry.record.name));
    }
    context.PrintJson(items);
}

void RunUndo(CContext& context)
{
    const browser::JobStores stores = Stores(context);
    const auto latest = browser::CChangeJournal(stores.journal).Latest();
    browser::FileJobReport report;
    if (latest) {
        CJobHost host(context, latest->record.steps.size());
        browser::FileJobRequest request{browser::FileTask::undo, {}, {}, latest->record, {}};
        request.stores = stores;
        report = browser::RunFileJob(request, host);
        for (const platform::FileProblem& problem : report.problems) {
            context.Fail(problem.path, WhyNot(problem));
        }
    } else {
        context.Fail("undo", "there is nothing to undo");
    }
    context.PrintJson({{"undone", report.done}, {"failed", report.problemCount}});
    context.PrintReport(fmt::format("undone {}", report.done));
}

}  // namespace

void AddRenameCommands(CLI::App& parser, CContext& context)
{
    auto* rename = parser.add_subcommand("rename", "Give files a prefix and a running number as their names");
    auto arguments = std::make_shared<RenameArguments>();
    rename->add_option("--prefix", arguments->fields.prefix, "What the names begin with")
        ->capture_default_str();
    rename->add_option("--digits", arguments->fields.digits, "Digits of the number, 1 to 16")
        ->capture_default_str();
    rename->add_flag("--dry-run", arguments->dryRun, "Only tell which names the files would get");
    rename->add_option("FILE", arguments->files, "The files, in order")->required();
    rename->callback([&context, arguments] {
        const std::string first = AbsolutePath(arguments->files.front());
        const std::string objection = Objection(arguments->fields, std::string(browser::FolderOf(first)));
        if (!objection.empty()) {
            throw CLI::ValidationError(objection);
        }
        RunRename(context, *arguments);
    });

    auto* undo = parser.add_subcommand("undo", "Take back the latest rename or change of time stamps");
    auto listOnly = std::make_shared<bool>(false);
    undo->add_flag("--list", *listOnly, "Only list what can be taken back, oldest first");
    undo->callback([&context, listOnly] { *listOnly ? RunUndoList(context) : RunUndo(context); });
}

}  // namespace cli
