// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Jobs on files and the way back, on the real file system and with its faults.
#include "browser/clash_names.h"
#include "browser/file_job.h"
#include "browser/file_names.h"
#include "platform/process.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_shell.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;
using browser::ClashAnswer;
using browser::FileJobReport;
using browser::FileTask;
using browser::UndoRecord;
using platform::FileFailure;
using platform::FileOperation;
using support::ReadBytes;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

// The real shell; a step on a path that holds `failing` fails with `failure` as if the disk had.
class CShellWithFaults : public platform_linux::CLinuxShell
{
public:
    std::string failing;
    FileOperation operation = FileOperation::copy;
    FileFailure failure = FileFailure::noRoom;

    platform::FileStepResult DoFileStep(const platform::FileStep& step) override
    {
        if (!failing.empty() && step.operation == operation && step.source.find(failing) != std::string::npos)
            return {false, {}, {{step.source, failure, "made to fail"}}};
        return CLinuxShell::DoFileStep(step);
    }
};

class CHost : public browser::CFileJobHost
{
public:
    std::vector<browser::ClashReply> replies;  // in turn; then cancel
    std::vector<std::string> asked;
    int callsUntilStop = -1;

    browser::ClashReply AskAboutClash(const browser::Clash& clash) override
    {
        asked.push_back(clash.target + (clash.areFolders ? "/" : ""));
        if (asked.size() > replies.size())
            return {};
        return replies[asked.size() - 1];
    }
    bool Progress(const browser::FileJobProgress& progress) override
    {
        EXPECT_TRUE(progress.fraction >= 0 && progress.fraction <= 1);
        return callsUntilStop < 0 || callsUntilStop-- > 0;
    }
};

class FileJob : public testing::Test
{
protected:
    FileJob()
    {
        fs::create_directories(folder.Path("a"));
        fs::create_directories(folder.Path("b"));
    }

    FileJobReport Run(FileTask task, const std::vector<std::string>& names, const std::string& target = {})
    {
        browser::FileJobRequest request{task, {}, target.empty() ? target : folder.Path(target), {}, {}};
        for (const std::string& name : names)
            request.sources.push_back(folder.Path(name));
        return browser::RunFileJob(request, host);
    }
    FileJobReport Undo(const UndoRecord& record)
    {
        return browser::RunFileJob({FileTask::undo, {}, {}, record, {}}, host);
    }
    // Every file below the test's folder with its bytes, and every folder with "/"; the trash left out.
    std::vector<std::string> Files() const
    {
        std::vector<std::string> found;
        for (auto at = fs::recursive_directory_iterator(folder.Path()); at != fs::end(at); ++at) {
            const std::string name = at->path().string().substr(folder.Path().size() + 1);
            if (name == "data")
                at.disable_recursion_pending();
            else if (at->is_symlink())
                found.push_back(name + "@" + fs::read_symlink(at->path()).string());
            else
                found.push_back(at->is_directory() ? name + "/" : name + "=" + ReadBytes(at->path()));
        }
        return found;
    }
    static std::vector<std::string> Failures(const FileJobReport& report)
    {
        std::vector<std::string> all;
        for (const auto& problem : report.problems)
            all.push_back(std::string(browser::FileName(problem.path)) + " " +
                          std::to_string(static_cast<int>(problem.failure)));
        return all;
    }
    static std::string Failure(const std::string& name, FileFailure failure)
    {
        return name + " " + std::to_string(static_cast<int>(failure));
    }

    support::CTempFolder folder;
    tests::CEnvironment environment{{{"XDG_DATA_HOME", folder.Path("data")}}};
    platform_linux::CLinuxFileSystem files;
    CShellWithFaults shell;
    support::CServicesGuard guard{platform::Services{&files, nullptr, nullptr, &shell}};
    CHost host;
};

TEST(ClashNames, CountOnAndFitTheFileSystem)
{
    const std::string e = "\xC3\xA9";
    std::string many;
    for (int i = 0; i < 125; ++i)
        many += e;
    const struct {
        std::string name;
        int number;
        browser::NameKind kind;
        std::string expected;
    } rows[] = {
        {"a.jpg", 2, browser::NameKind::file, "a (2).jpg"},
        {"a (2).jpg", 3, browser::NameKind::file, "a (3).jpg"},
        {"a (x).jpg", 2, browser::NameKind::file, "a (x) (2).jpg"},
        {" (2)", 2, browser::NameKind::file, " (2) (2)"},
        {".hidden", 2, browser::NameKind::file, ".hidden (2)"},
        {"v1.5", 2, browser::NameKind::folder, "v1.5 (2)"},
        {"-\xFF.b", 10, browser::NameKind::file, "-\xFF (10).b"},
        {std::string(255, 'n'), 2, browser::NameKind::file, std::string(251, 'n') + " (2)"},
        {many + "x.jpg", 12, browser::NameKind::file, many.substr(0, 246) + " (12).jpg"},
        {"x." + std::string(253, 'e'), 2, browser::NameKind::file, "x." + std::string(249, 'e') + " (2)"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(browser::NumberedName(row.name, row.number, row.kind), row.expected) << row.name;
}

TEST_F(FileJob, CopiesWhatItIsGivenByteForByteAndTakesItBack)
{
    const std::string odd = "-r\xFF\n x.jpg";
    folder.Make("a/" + odd, "odd");
    folder.Make("a/f", "file");
    fs::create_directories(folder.Path("a/sub/deep"));
    folder.Make("a/sub/deep/g", "inner");
    fs::create_symlink("deep/g", folder.Path("a/sub/link"));
    fs::last_write_time(folder.Path("a/f"), fs::file_time_type::clock::now() - std::chrono::hours(1000));
    chmod(folder.Path("a/f").c_str(), 0640);
    const auto before = Files();

    const FileJobReport report = Run(FileTask::copy, {"a/" + odd, "a/f", "a/sub/"}, "b");

    EXPECT_EQ(report.done, 3U);
    EXPECT_THAT(report.results,
                ElementsAre(folder.Path("b/" + odd), folder.Path("b/f"), folder.Path("b/sub")));
    EXPECT_EQ(ReadBytes(folder.Path("b/" + odd)), "odd");
    EXPECT_EQ(ReadBytes(folder.Path("b/sub/deep/g")), "inner");
    EXPECT_TRUE(fs::is_symlink(folder.Path("b/sub/link")));
    EXPECT_EQ(fs::last_write_time(folder.Path("b/f")), fs::last_write_time(folder.Path("a/f")));
    EXPECT_EQ(fs::status(folder.Path("b/f")).permissions(), fs::status(folder.Path("a/f")).permissions());

    // What has been changed since stays; the rest goes to the trash.
    folder.Make("b/f", "edited since");
    const FileJobReport undone = Undo(report.undo);
    EXPECT_THAT(Failures(undone), ElementsAre(Failure("f", FileFailure::changed)));
    auto expected = before;
    expected.push_back("b/f=edited since");
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(expected));
    EXPECT_TRUE(fs::exists(folder.Path("data/Trash/files/sub/deep/g")));
}

TEST_F(FileJob, ACopyBesideItselfGetsANumberAndAMoveToWhereItIsDoesNothing)
{
    folder.Make("a/x.jpg", "x");
    fs::create_directory_symlink("a", folder.Path("way"));

    const FileJobReport first = Run(FileTask::copy, {"a/x.jpg"}, "a");
    const FileJobReport second = Run(FileTask::copy, {"a/x (2).jpg", "way/x.jpg"}, "a");
    const FileJobReport moved = Run(FileTask::move, {"way/x.jpg"}, "a");

    EXPECT_THAT(first.results, ElementsAre(folder.Path("a/x (2).jpg")));
    EXPECT_THAT(second.results, ElementsAre(folder.Path("a/x (3).jpg"), folder.Path("a/x (4).jpg")));
    EXPECT_TRUE(moved.done == 1 && moved.problems.empty() && moved.undo.steps.empty());
    EXPECT_THAT(host.asked, IsEmpty());
    EXPECT_EQ(ReadBytes(folder.Path("a/x.jpg")), "x");
}

TEST_F(FileJob, ATakenNameIsSkippedReplacedOrKeptBesideAsTheUserSays)
{
    struct Case {
        std::vector<browser::ClashReply> replies;
        std::size_t asked;
        std::vector<std::string> after;
        std::size_t skipped;
        bool cancelled;
    };
    const std::vector<std::string> old = {"b/1=old", "b/2=old"};
    for (const FileTask task : {FileTask::copy, FileTask::move}) {
        for (const Case& c : {
                 Case{{{ClashAnswer::skip, true}}, 1, {"b/1=old", "b/2=old", "b/3=new"}, 2, false},
                 Case{{{ClashAnswer::replace, false}, {ClashAnswer::skip, false}},
                      2,
                      {"b/1=new", "b/2=old", "b/3=new"},
                      1,
                      false},
                 Case{{{ClashAnswer::keepBoth, true}},
                      1,
                      {"b/1=old", "b/2=old", "b/1 (2)=new", "b/2 (2)=new", "b/3=new"},
                      0,
                      false},
                 Case{{}, 1, old, 0, true},
             }) {
            fs::remove_all(folder.Path("b"));
            fs::create_directory(folder.Path("b"));
            for (const char* name : {"1", "2", "3"})
                folder.Make(std::string("a/") + name, "new");
            folder.Make("b/1", "old");
            folder.Make("b/2", "old");
            const auto before = Files();
            host = CHost();
            host.replies = c.replies;

            const FileJobReport report = Run(task, {"a/1", "a/2", "a/3"}, "b");
            const auto after = Files();
            const FileJobReport undone = Undo(report.undo);

            EXPECT_EQ(host.asked.size(), c.asked);
            EXPECT_EQ(report.skipped, c.skipped);
            EXPECT_EQ(report.cancelled, c.cancelled);
            for (const std::string& line : c.after)
                EXPECT_THAT(after, Contains(line));
            EXPECT_THAT(undone.problems, IsEmpty());
            EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(before));
        }
    }
}

TEST_F(FileJob, FoldersAreMergedOnlyWhenAskedAndComeApartAgain)
{
    for (const char* path : {"a/d/x", "b/d/x"})
        fs::create_directories(folder.Path(path));
    folder.Make("a/d/x/same", "new");
    folder.Make("a/d/x/only", "new");
    folder.Make("b/d/x/same", "old");
    const auto before = Files();
    host.replies = {{ClashAnswer::merge, true}, {ClashAnswer::replace, false}};

    const FileJobReport report = Run(FileTask::move, {"a/d"}, "b");
    const auto after = Files();
    const FileJobReport undone = Undo(report.undo);

    EXPECT_THAT(host.asked, ElementsAre(folder.Path("b/d/"), folder.Path("b/d/x/same")));
    EXPECT_THAT(after,
                UnorderedElementsAre("a/", "b/", "b/d/", "b/d/x/", "b/d/x/same=new", "b/d/x/only=new"));
    EXPECT_THAT(report.results, ElementsAre(folder.Path("b/d")));
    EXPECT_THAT(undone.problems, IsEmpty());
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(before));
}

TEST_F(FileJob, AFolderNeitherGoesIntoItselfNorTakesThePlaceOfOneAboveIt)
{
    fs::create_directories(folder.Path("a/x/x"));
    fs::create_directory_symlink("a/x", folder.Path("way"));
    const auto before = Files();
    host.replies = {{ClashAnswer::replace, false}};

    const FileJobReport copied = Run(FileTask::copy, {"a/x"}, "way");
    const FileJobReport moved = Run(FileTask::move, {"a"}, "a/x/x");
    const FileJobReport up = Run(FileTask::move, {"a/x/x"}, "a");

    EXPECT_THAT(Failures(moved), ElementsAre(Failure("a", FileFailure::intoItself)));
    EXPECT_THAT(Failures(up), ElementsAre(Failure("x", FileFailure::intoItself)));
    EXPECT_TRUE(copied.done == 0 && up.undo.steps.empty());
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(before));
}

TEST_F(FileJob, TheTrashGivesBackWhatItTookAndSaysWhatItCannot)
{
    const std::string odd = "a/50% \xFF.jpg";
    folder.Make(odd, "odd");
    folder.Make("a/taken", "first");
    fs::create_directories(folder.Path("a/d/e"));
    const FileJobReport report = Run(FileTask::trash, {odd, "a/taken", "a/d", "a/none"});
    EXPECT_THAT(Failures(report), ElementsAre(Failure("none", FileFailure::missing)));
    EXPECT_THAT(Files(), UnorderedElementsAre("a/", "b/"));
    folder.Make("a/taken", "second");

    const FileJobReport undone = Undo(report.undo);

    EXPECT_THAT(Failures(undone), ElementsAre(Failure("taken", FileFailure::nameTaken)));
    EXPECT_THAT(Files(), UnorderedElementsAre("a/", "b/", odd + "=odd", "a/taken=second", "a/d/", "a/d/e/"));
    EXPECT_TRUE(fs::exists(folder.Path("data/Trash/files/taken")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("data/Trash/info")), {}), 1);
}

TEST_F(FileJob, RenamesMakesAndRemovesFoldersAndUndoesThem)
{
    folder.Make("a/f", "x");
    folder.Make("a/g", "y");

    const FileJobReport renamed = Run(FileTask::rename, {"a/f"}, "a/F");
    const FileJobReport refused = Run(FileTask::rename, {"a/F"}, "a/g");
    const FileJobReport made = Run(FileTask::makeFolder, {}, "a/new");
    const FileJobReport again = Run(FileTask::makeFolder, {}, "a/g");
    EXPECT_THAT(renamed.results, ElementsAre(folder.Path("a/F")));
    EXPECT_THAT(Failures(refused), ElementsAre(Failure("F", FileFailure::nameTaken)));
    EXPECT_THAT(Failures(again), ElementsAre(Failure("g", FileFailure::nameTaken)));
    EXPECT_THAT(Files(), UnorderedElementsAre("a/", "b/", "a/F=x", "a/g=y", "a/new/"));

    folder.Make("a/new/inside", "kept");
    EXPECT_THAT(Failures(Undo(made.undo)), ElementsAre(Failure("new", FileFailure::changed)));
    fs::remove(folder.Path("a/new/inside"));
    EXPECT_THAT(Undo(made.undo).problems, IsEmpty());
    EXPECT_THAT(Undo(renamed.undo).problems, IsEmpty());
    EXPECT_TRUE(Run(FileTask::remove, {"a", "b"}).undo.steps.empty());
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(FileJob, WhatFailsHalfWayLosesNothingAndIsToldOnce)
{
    for (const char* name : {"a/1", "a/2", "a/3", "b/2"})
        folder.Make(name, name);
    const auto before = Files();
    host.replies = {{ClashAnswer::replace, true}};
    shell.failing = "a/2";

    const FileJobReport copied = Run(FileTask::copy, {"a/1", "a/2", "a/3"}, "b");
    EXPECT_THAT(Failures(copied), ElementsAre(Failure("2", FileFailure::noRoom)));
    // The old one is back from the trash.
    EXPECT_EQ(ReadBytes(folder.Path("b/2")), "b/2");
    EXPECT_EQ(copied.done, 2U);
    EXPECT_THAT(Undo(copied.undo).problems, IsEmpty());
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(before));

    // Without a trash nothing is replaced.
    host = CHost();
    host.replies = {{ClashAnswer::replace, true}};
    shell.failing = "b/2";
    shell.operation = FileOperation::trash;
    shell.failure = FileFailure::noTrash;
    const FileJobReport kept = Run(FileTask::move, {"a/2"}, "b");
    EXPECT_THAT(Failures(kept), ElementsAre(Failure("2", FileFailure::noTrash)));
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(before));
}

TEST_F(FileJob, StopsWhereItIsToldToAndKeepsTheWayBack)
{
    const std::string bytes(600'000, 'x');
    for (const char* name : {"a/1", "a/2", "a/3"})
        folder.Make(name, bytes);
    const support::CTempFolder other("/dev/shm");
    std::vector<std::string> sources = {folder.Path("a/1"), folder.Path("a/2"), folder.Path("a/3")};

    // Within the second file: it is not there at all, and its source still is.
    host.callsUntilStop = 6;
    const FileJobReport report = browser::RunFileJob({FileTask::move, sources, other.Path(), {}, {}}, host);
    EXPECT_TRUE(report.cancelled);
    EXPECT_TRUE(fs::exists(other.Path("1")) && !fs::exists(other.Path("2")) && !fs::exists(sources[0]));
    EXPECT_EQ(ReadBytes(sources[1]), bytes);

    host.callsUntilStop = 0;
    const FileJobReport stopped = Undo(report.undo);
    EXPECT_TRUE(stopped.cancelled && stopped.undo == report.undo);
    host.callsUntilStop = -1;
    EXPECT_THAT(Undo(stopped.undo).problems, IsEmpty());
    EXPECT_EQ(ReadBytes(sources[0]), bytes);
    EXPECT_TRUE(fs::is_empty(other.Path()));
}

TEST_F(FileJob, ReportsWhatMayNotBeTouchedAndDoesTheRest)
{
    for (const char* name : {"a/in/1", "a/in/2"}) {
        fs::create_directories(folder.Path("a/in"));
        folder.Make(name, "x");
    }
    chmod(folder.Path("a/in/2").c_str(), 0);
    fs::create_directory(folder.Path("a/locked"));
    folder.Make("a/locked/file", "x");
    chmod(folder.Path("a/locked").c_str(), 0500);
    for (const char* name : {"", "a", "a/in", "a/in/1", "a/in/2", "a/locked", "a/locked/file", "b"})
        ASSERT_EQ(chown(folder.Path(name).c_str(), 65534, 65534), geteuid() == 0 ? 0 : -1);

    const int result = tests::RunAsPlainUser([&] {
        const FileJobReport copied = Run(FileTask::copy, {"a/in"}, "b");
        const FileJobReport trashed = Run(FileTask::trash, {"a/locked/file"});
        const FileJobReport removed = Run(FileTask::remove, {"a/locked"});
        const FileJobReport moved = Run(FileTask::move, {"b/in"}, "a/locked");
        const bool told = Failures(copied) == std::vector{Failure("2", FileFailure::noPermission)} &&
                          Failures(trashed) == std::vector{Failure("file", FileFailure::noPermission)} &&
                          Failures(removed) == std::vector{Failure("file", FileFailure::noPermission)} &&
                          Failures(moved) == std::vector{Failure("in", FileFailure::noPermission)};
        const bool kept = fs::exists(folder.Path("b/in/1")) && !fs::exists(folder.Path("b/in/2")) &&
                          fs::exists(folder.Path("a/locked/file"));
        const bool undone = Undo(copied.undo).problems.empty() && !fs::exists(folder.Path("b/in"));
        return (told ? 0 : 1) + (kept ? 0 : 2) + (undone ? 0 : 4);
    });
    chmod(folder.Path("a/locked").c_str(), 0700);

    EXPECT_EQ(result, 0);
}

TEST_F(FileJob, AFullDiskLeavesNoHalfWrittenFileAndNoLostSource)
{
    folder.Make("a/small", std::string(1000, 's'));
    fs::create_directory(folder.Path("a/d"));
    folder.Make("a/d/1", std::string(100'000, '1'));
    folder.Make("a/d/2", std::string(400'000, '2'));

    const std::optional<int> result = tests::RunOnSmallDisk([&](const std::string& disk) {
        const auto to = [&](FileTask task, std::vector<std::string> names) {
            for (std::string& name : names)
                name = folder.Path(name);
            return browser::RunFileJob({task, names, disk, {}, {}}, host);
        };
        const FileJobReport moved = to(FileTask::move, {"a/d"});
        const bool back = Failures(moved) == std::vector{Failure("2", FileFailure::noRoom)} &&
                          fs::is_empty(disk) && fs::file_size(folder.Path("a/d/1")) == 100'000;
        const FileJobReport copied = to(FileTask::copy, {"a/d", "a/small"});
        const bool part = fs::exists(disk + "/d/1") && !fs::exists(disk + "/d/2") &&
                          fs::exists(disk + "/small") && copied.problemCount == 1;
        const bool undone = Undo(copied.undo).problems.empty() && !fs::exists(disk + "/d");
        return (back ? 0 : 1) + (part ? 0 : 2) + (undone ? 0 : 4);
    });

    EXPECT_EQ(result.value_or(0), 0);
}

TEST(UndoList, GivesBackTheLatestAndForgetsTheOldest)
{
    browser::CUndoList list;
    list.Push({});
    EXPECT_EQ(list.Latest(), nullptr);
    for (int i = 0; i < 150; ++i)
        list.Push({FileTask::move, 1, std::to_string(i), {{}}});

    EXPECT_EQ(list.Latest()->name, "149");
    for (int i = 149; i >= 50; --i)
        EXPECT_EQ(list.Take()->name, std::to_string(i));
    EXPECT_FALSE(list.Take());
}

}  // namespace
