// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/package_archive.h"
#include "cli/commands.h"

#include <fmt/format.h>

#include <functional>

namespace cli
{

namespace
{

using archive::CPackageArchive;
using Mode = CPackageArchive::Mode;

struct ArchiveArguments {
    std::string file;
    std::vector<std::string> sources;
    std::string name;
    std::optional<std::uint64_t> created;
    std::optional<std::uint64_t> modified;
    std::optional<std::uint64_t> size;
    std::uint64_t third = 0;
    std::optional<std::string> caption;
    std::optional<std::string> stamp;
    std::optional<std::string> second;
    bool fullName = false;
    std::string to;
    bool toStandardOutput = false;
    bool compact = false;
    bool noCompact = false;
};

// Opens the archive, lets `work` do its part and closes with or without compaction. Prints the result.
void WithArchive(CContext& context, const std::string& file, Mode mode, bool compact,
                 const std::function<bool(CPackageArchive&)>& work)
{
    CPackageArchive archive;
    bool done = archive.Open(file, mode) && work(archive);
    std::string why = archive.Error();
    if (archive.IsOpen() && !archive.Close(compact) && done) {
        done = false;
        why = archive.Error();
    }
    context.PrintResult(done, file, why);
}

// Calls `work` with the member of that name. Failures are reported; whether all of it was done.
bool WithMember(CContext& context, const ArchiveArguments& arguments, Mode mode, bool compact,
                const std::function<bool(CPackageArchive&, std::size_t)>& work)
{
    CPackageArchive archive;
    if (!archive.Open(arguments.file, mode)) {
        context.Fail(arguments.file, archive.Error());
        return false;
    }
    const auto member = archive.Find(arguments.name);
    if (!member) {
        context.Fail(arguments.name, "there is no such member");
        return false;
    }
    if (!work(archive, *member) || !archive.Close(compact)) {
        context.Fail(arguments.name, archive.Error());
        return false;
    }
    return true;
}

void RunAdd(CContext& context, const ArchiveArguments& arguments)
{
    archive::AddOptions options;
    if (arguments.created) {
        options.facts = archive::SourceFacts{*arguments.created, arguments.modified.value_or(0),
                                             arguments.size.value_or(0)};
    }
    options.thirdTime = arguments.third;
    options.timeStampText = arguments.stamp.value_or("");
    options.keepFullName = arguments.fullName;
    CPackageArchive archive;
    if (!archive.Open(arguments.file, Mode::readWrite)) {
        context.PrintResult(false, arguments.file, archive.Error());
        return;
    }
    bool allDone = true;
    CProgressBar bar(context, arguments.sources.size());
    for (const std::string& source : arguments.sources) {
        if (Interruption() != 0) {
            break;
        }
        if (!archive.AddFile(source, options)) {
            context.Fail(source, archive.Error());
            allDone = false;
        }
        bar.Advance();
    }
    if (!archive.Close(false)) {
        context.Fail(arguments.file, archive.Error());
        allDone = false;
    }
    context.PrintJson({{"result", allDone}});
}

Json Describe(const archive::PackageMember& member)
{
    return {{"name", member.name},
            {"caption", member.caption},
            {"timeStamp", member.timeStampText},
            {"secondText", member.secondText},
            {"originalSize", member.originalSize},
            {"storedSize", member.storedSize},
            {"created", member.creationTime},
            {"modified", member.lastWriteTime},
            {"third", member.thirdTime},
            {"deleted", member.deleted},
            {"recordPosition", member.recordPosition},
            {"dataPosition", member.dataPosition}};
}

void RunList(CContext& context, const ArchiveArguments& arguments)
{
    CPackageArchive archive;
    if (!archive.Open(arguments.file, Mode::read)) {
        context.Fail(arguments.file, archive.Error());
        return;
    }
    Json members = Json::array();
    for (std::size_t i = 0; i < archive.Count(); ++i) {
        const archive::PackageMember& member = archive.Member(i);
        if (context.json) {
            members.push_back(Describe(member));
        }
        context.PrintLine(fmt::format("{}\t{}\t{}\t{}\t{}\t{}", member.name, member.originalSize,
                                      member.storedSize, member.deleted ? "deleted" : "",
                                      member.timeStampText, member.caption));
    }
    context.PrintJson({{"count", archive.Count()}, {"members", std::move(members)}});
}

void RunExtract(CContext& context, const ArchiveArguments& arguments)
{
    const bool done =
        WithMember(context, arguments, Mode::read, false, [&](auto& archive, std::size_t member) {
            if (!arguments.toStandardOutput) {
                return archive.ExtractToFolder(member, arguments.to);
            }
            std::string data;
            const bool extracted = archive.ExtractToMemory(member, data);
            CContext::PrintBytes(data);
            return extracted;
        });
    if (!arguments.toStandardOutput) {
        context.PrintJson({{"result", done}});
    }
}

void RunRemove(CContext& context, const ArchiveArguments& arguments)
{
    const auto remove = [](auto& archive, std::size_t member) { return archive.Remove(member); };
    context.PrintJson(
        {{"result", WithMember(context, arguments, Mode::readWrite, arguments.compact, remove)}});
}

void RunTexts(CContext& context, const ArchiveArguments& arguments)
{
    const auto set = [&arguments](auto& archive, std::size_t member) {
        return archive.SetTexts(member, arguments.caption, arguments.stamp, arguments.second);
    };
    context.PrintJson(
        {{"result", WithMember(context, arguments, Mode::readWrite, !arguments.noCompact, set)}});
}

using Arguments = std::shared_ptr<ArchiveArguments>;

CLI::App* AddCommand(CLI::App& parent, CContext& context, const char* name, const char* help,
                     const Arguments& arguments, void (*run)(CContext&, const ArchiveArguments&))
{
    auto* command = parent.add_subcommand(name, help);
    command->add_option("FILE", arguments->file, "The archive")->required();
    command->callback([&context, arguments, run] { run(context, *arguments); });
    return command;
}

void AddAdd(CLI::App& parent, CContext& context, const Arguments& arguments)
{
    auto* add = AddCommand(parent, context, "add", "Append members", arguments, RunAdd);
    add->add_option("SOURCE", arguments->sources, "The files to append")->required();
    auto* created =
        add->add_option("--created", arguments->created, "Creation time, as a file time in decimal");
    auto* modified = add->add_option("--modified", arguments->modified, "Last-write time");
    auto* size = add->add_option("--size", arguments->size, "Original size in bytes");
    created->needs(modified)->needs(size);
    modified->needs(created);
    size->needs(created);
    add->add_option("--third", arguments->third, "Third time");
    add->add_option("--stamp", arguments->stamp, "Time stamp text");
    add->add_flag("--full-name", arguments->fullName, "Name the members with the whole path");
}

void AddMemberCommands(CLI::App& parent, CContext& context, const Arguments& arguments)
{
    auto* extract = AddCommand(parent, context, "extract", "One member's data", arguments, RunExtract);
    extract->add_option("NAME", arguments->name, "The member")->required();
    auto* where = extract->add_option_group("where");
    where->add_option("--to", arguments->to, "Write a file of the member's name into this folder");
    where->add_flag("--stdout", arguments->toStandardOutput, "Write to standard output");
    where->require_option(1);

    auto* remove = AddCommand(parent, context, "remove", "Mark one member deleted", arguments, RunRemove);
    remove->add_option("NAME", arguments->name, "The member")->required();
    remove->add_flag("--compact", arguments->compact, "Drop the data of deleted members");

    auto* texts = AddCommand(parent, context, "texts", "Set the three texts; one not given is cleared",
                             arguments, RunTexts);
    texts->add_option("NAME", arguments->name, "The member")->required();
    texts->add_option("--caption", arguments->caption, "Caption");
    texts->add_option("--stamp", arguments->stamp, "Time stamp text");
    texts->add_option("--second", arguments->second, "Second text");
    texts->add_flag("--no-compact", arguments->noCompact, "Close without writing them to the file");
}

}  // namespace

void AddArchiveCommand(CLI::App& parser, CContext& context)
{
    auto* parent = parser.add_subcommand("archive", "Package archives");
    parent->require_subcommand(1);
    const auto arguments = std::make_shared<ArchiveArguments>();
    AddCommand(*parent, context, "create", "An empty archive", arguments,
               [](CContext& run, const ArchiveArguments& given) {
                   WithArchive(run, given.file, Mode::create, false, [](CPackageArchive&) { return true; });
               });
    AddAdd(*parent, context, arguments);
    AddCommand(*parent, context, "list", "The members, deleted ones included", arguments, RunList);
    AddMemberCommands(*parent, context, arguments);
    AddCommand(*parent, context, "compact", "Drop the data of deleted members", arguments,
               [](CContext& run, const ArchiveArguments& given) {
                   WithArchive(run, given.file, Mode::readWrite, true, [](CPackageArchive&) { return true; });
               });
}

}  // namespace cli
