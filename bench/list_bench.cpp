// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sorting a list of 100,000 files, and the longest piece of work while a folder of them is read. The folder
// is made below the temporary folder once and kept.
#include "browser/media_file_list.h"
#include "platform_linux/services.h"
#include "suite/utility/utility_library.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

namespace
{

constexpr int kFiles = 100'000;

std::string Folder()
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "kelvo-list-bench";
    if (!std::filesystem::exists(folder / "done.txt")) {
        std::filesystem::create_directories(folder);
        std::mt19937 random(1);
        const char* extensions[] = {".jpg", ".JPG", ".png", ".avi", ".mid"};
        for (int i = 0; i < kFiles; ++i) {
            std::ofstream file(folder / ("IMG_" + std::to_string(i) + extensions[random() % 5]));
            file << std::string(random() % 1000, 'x');
        }
        std::ofstream(folder / "done.txt") << "done";
    }
    return folder.string();
}

browser::CMediaFileList& ReadList()
{
    static browser::CMediaFileList list;
    if (list.Count() == 0) {
        list.Fill(Folder());
        while (list.FactsStep(1000)) {
        }
    }
    return list;
}

void BM_Sort(benchmark::State& state)
{
    browser::CMediaFileList& list = ReadList();
    const auto key = browser::SortKey(state.range(0));
    for (auto _ : state) {
        list.SetOrder({key, !list.Order().descending});
    }
}
BENCHMARK(BM_Sort)
    ->ArgName("key")
    ->DenseRange(0, static_cast<int>(browser::SortKey::modified))
    ->Unit(benchmark::kMillisecond);

// The longest single step of a fill and of the reading behind it, in milliseconds.
void BM_LongestStep(benchmark::State& state)
{
    const auto key = browser::SortKey(state.range(0));
    double longest = 0;
    for (auto _ : state) {
        browser::CMediaFileList list;
        list.SetOrder({key, true});
        list.StartFill(Folder());
        for (bool more = true; more;) {
            const auto start = std::chrono::steady_clock::now();
            more = list.FillStep();
            longest = std::max(
                longest,
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        }
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK(BM_LongestStep)
    ->ArgName("key")
    ->Arg(static_cast<int>(browser::SortKey::name))
    ->Arg(static_cast<int>(browser::SortKey::size))
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

}  // namespace

int main(int argc, char** argv)
{
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    utility.Install();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
