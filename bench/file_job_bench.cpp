// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Jobs on 1,000 files of 100 kB, with `cp -r` and `mv` beside them. Works
// in $KELVO_BENCH_FOLDER, else in the current folder.
#include "browser/file_job.h"
#include "platform/services.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_shell.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace fs = std::filesystem;
using browser::FileTask;

namespace
{

constexpr int kFiles = 1'000;

class CSilentHost : public browser::CFileJobHost
{
public:
    browser::ClashReply AskAboutClash(const browser::Clash&) override { return {}; }
    bool Progress(const browser::FileJobProgress&) override { return true; }
};

class CBenchFolder
{
public:
    CBenchFolder()
    {
        const char* place = std::getenv("KELVO_BENCH_FOLDER");
        folder = fs::absolute(fs::path(place ? place : ".") / "file_job_bench.tmp");
        fs::create_directories(folder / "from");
        std::mt19937_64 random(1);
        std::string bytes(100'000, '\0');
        for (int i = 0; i < kFiles; ++i) {
            for (std::size_t at = 0; at < bytes.size(); at += 8)
                bytes[at] = static_cast<char>(random());
            std::ofstream(folder / "from" / std::to_string(i), std::ios::binary) << bytes;
        }
        setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    }
    ~CBenchFolder() { fs::remove_all(folder); }
    std::string Path(const std::string& name) const { return folder / name; }
    std::vector<std::string> Files(const std::string& name) const
    {
        std::vector<std::string> paths;
        for (int i = 0; i < kFiles; ++i)
            paths.push_back(folder / name / std::to_string(i));
        return paths;
    }
    void Empty(const std::string& name) const
    {
        fs::remove_all(folder / name);
        fs::create_directories(folder / name);
    }

private:
    fs::path folder;
};

const CBenchFolder& Folder()
{
    static const CBenchFolder folder;
    return folder;
}

void Job(const browser::FileJobRequest& request)
{
    CSilentHost host;
    if (browser::RunFileJob(request, host).done != kFiles)
        std::abort();
}

void Copy(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Folder().Empty("to");
        state.ResumeTiming();
        Job({FileTask::copy, Folder().Files("from"), Folder().Path("to"), {}, {}});
    }
}

void MoveThereAndBack(benchmark::State& state)
{
    Folder().Empty("to");
    for (auto _ : state) {
        Job({FileTask::move, Folder().Files("from"), Folder().Path("to"), {}, {}});
        Job({FileTask::move, Folder().Files("to"), Folder().Path("from"), {}, {}});
    }
}

void TrashAndUndo(benchmark::State& state)
{
    for (auto _ : state) {
        CSilentHost host;
        const auto report = browser::RunFileJob({FileTask::trash, Folder().Files("from"), {}, {}, {}}, host);
        Job({FileTask::undo, {}, {}, report.undo, {}});
    }
}

void Program(benchmark::State& state, const char* command)
{
    const std::string line = "cd '" + Folder().Path("") + "' && " + command;
    for (auto _ : state) {
        state.PauseTiming();
        Folder().Empty("to");
        state.ResumeTiming();
        if (std::system(line.c_str()) != 0)
            state.SkipWithError("the program is not there");
    }
}

BENCHMARK(Copy)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Program, cp, "cp -r from to/")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(MoveThereAndBack)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Program, mv, "mv from/* to/ && mv to/* from/")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(TrashAndUndo)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    platform_linux::CLinuxFileSystem files;
    platform_linux::CLinuxShell shell;
    platform::Os().files = &files;
    platform::Os().shell = &shell;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
