// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The calls of the archive, with 10 and with 10,000 members of some 7 kB that do not compress. Works in
// $KELVO_BENCH_FOLDER, else in the current folder. bench/archive_peers.sh sets other programs beside it.
#include "archive/package_archive.h"
#include "platform/services.h"
#include "platform_linux/linux_file_system.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace fs = std::filesystem;
using archive::CPackageArchive;
using Mode = CPackageArchive::Mode;

namespace
{

constexpr int kMostMembers = 10'000;
constexpr int kRemoved = 1'000;

std::string NameOf(int number)
{
    return "IMG_" + std::to_string(10'000 + number) + ".JPG.jpg";
}

// The folder of the sources and archives, made at the first use and deleted at the end.
class CBenchFolder
{
public:
    CBenchFolder()
    {
        const char* place = std::getenv("KELVO_BENCH_FOLDER");
        folder = fs::absolute(fs::path(place ? place : ".") / "archive_bench.tmp");
        fs::create_directories(folder / "sources");
        std::mt19937_64 random(1);
        std::string bytes(6'900, '\0');
        for (int i = 0; i < kMostMembers; ++i) {
            for (char& byte : bytes)
                byte = static_cast<char>(random());
            std::ofstream(Source(i), std::ios::binary) << bytes;
        }
    }
    ~CBenchFolder() { fs::remove_all(folder); }
    std::string Source(int number) const { return folder / "sources" / NameOf(number); }
    std::string Archive(const std::string& name) const { return folder / name; }
    void Fill(const std::string& path, int members) const
    {
        CPackageArchive target;
        bool done = target.Open(path, Mode::create);
        for (int i = 0; i < members; ++i)
            done = done && target.AddFile(Source(i), {});
        if (!done || !target.Close(false))
            std::abort();
    }

private:
    fs::path folder;
};

const CBenchFolder& Folder()
{
    static const CBenchFolder folder;
    return folder;
}

void Fill(benchmark::State& state)
{
    const std::string path = Folder().Archive("fill.db");
    for (auto _ : state)
        Folder().Fill(path, static_cast<int>(state.range(0)));
}

void OpenAndAddOne(benchmark::State& state)
{
    const std::string path = Folder().Archive("add.db");
    Folder().Fill(path, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CPackageArchive target;
        if (!target.Open(path, Mode::readWrite) || !target.AddFile(Folder().Source(0), {}))
            std::abort();
    }
}

void OpenFindAndExtract(benchmark::State& state)
{
    const std::string path = Folder().Archive("find.db");
    const int members = static_cast<int>(state.range(0));
    Folder().Fill(path, members);
    int number = 0;
    std::string data;
    for (auto _ : state) {
        number = (number + 7919) % members;
        CPackageArchive target;
        if (!target.Open(path, Mode::readWrite) ||
            !target.ExtractToMemory(target.FindExact(NameOf(number)).value(), data))
            std::abort();
    }
}

// As a process that has not seen the archive before, start-up left out.
void OpenWithoutIndex(benchmark::State& state)
{
    const std::string path = Folder().Archive("cold.db");
    Folder().Fill(path, static_cast<int>(state.range(0)));
    const auto file = platform::Os().files->Open(path, platform::OpenMode::readWrite);
    for (auto _ : state) {
        file->MarkChanged();
        CPackageArchive target;
        if (!target.Open(path, Mode::read) || !target.Find(NameOf(static_cast<int>(state.range(0)) - 1)))
            std::abort();
    }
}

void RemoveAndCompact(benchmark::State& state)
{
    const std::string full = Folder().Archive("full.db");
    const std::string path = Folder().Archive("compact.db");
    Folder().Fill(full, kMostMembers);
    for (auto _ : state) {
        state.PauseTiming();
        // As zip's file is made for it: a copy, all of it on the disk.
        std::filesystem::copy_file(full, path, std::filesystem::copy_options::overwrite_existing);
        sync();
        state.ResumeTiming();
        CPackageArchive target;
        bool done = target.Open(path, Mode::readWrite);
        for (int i = 0; i < kRemoved; ++i)
            done = done && target.Remove(target.FindExact(NameOf(10 * i)).value());
        if (!done || !target.Close(true))
            std::abort();
    }
}

BENCHMARK(Fill)->Arg(kMostMembers)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OpenAndAddOne)->Arg(10)->Arg(kMostMembers)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(OpenFindAndExtract)->Arg(10)->Arg(kMostMembers)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(OpenWithoutIndex)->Arg(10)->Arg(kMostMembers)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(RemoveAndCompact)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv)
{
    platform_linux::CLinuxFileSystem files;
    platform::Os().files = &files;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
