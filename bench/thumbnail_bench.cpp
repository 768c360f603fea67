// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The image library's calls on photos of 24, 2.5 and 0.3 megapixels: the folder that bench/make_corpus made,
// named by $KELVO_CORPUS. bench/thumbnail_peers.sh sets another program beside the whole job.
#include "suite/image/image_library.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace
{

constexpr int kBox = 180;
constexpr const char* kSets[] = {"large", "middle", "small"};

struct Corpus {
    suite::CSuiteImageLibrary library;
    std::vector<std::string> files;
    fs::path target = fs::temp_directory_path() / "kelvo_thumbnail_bench.jpg";

    explicit Corpus(benchmark::State& state)
    {
        const char* const folder = std::getenv("KELVO_CORPUS");
        const fs::path set = fs::path(folder ? folder : "corpus") / kSets[state.range(0)];
        std::error_code ignored;
        for (const auto& entry : fs::directory_iterator(set, ignored))
            files.push_back(entry.path());
        if (files.empty())
            state.SkipWithError("no photos: run bench/make_corpus and set KELVO_CORPUS");
        state.SetLabel(kSets[state.range(0)]);
    }
    ~Corpus() { fs::remove(target); }
};

platform::BitmapHandle Make(platform::CImageSource& picture, int box)
{
    const double scale =
        std::min(1.0, static_cast<double>(box) / std::max(picture.Width(), picture.Height()));
    return picture.Render(std::max(1, static_cast<int>(picture.Width() * scale)),
                          std::max(1, static_cast<int>(picture.Height() * scale)));
}

void OpenAndTellSize(benchmark::State& state)
{
    Corpus corpus(state);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(corpus.library.Open(corpus.files[next++ % corpus.files.size()])->Width());
}
BENCHMARK(OpenAndTellSize)->DenseRange(0, 2);

void MakeThumbnail(benchmark::State& state)
{
    Corpus corpus(state);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            Make(*corpus.library.Open(corpus.files[next++ % corpus.files.size()]), kBox));
}
BENCHMARK(MakeThumbnail)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void SaveThumbnail(benchmark::State& state)
{
    Corpus corpus(state);
    if (corpus.files.empty())
        return;
    const platform::BitmapHandle thumbnail = Make(*corpus.library.Open(corpus.files[0]), kBox);
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            corpus.library.SaveJpeg(*thumbnail, corpus.target, platform::kDefaultJpegQuality));
        fs::remove(corpus.target);
    }
}
BENCHMARK(SaveThumbnail)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
