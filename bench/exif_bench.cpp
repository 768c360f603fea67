// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The EXIF reader beside libexif in one process, over the photos that bench/make_exif_corpus made, in the
// folder named by $KELVO_EXIF_CORPUS. One iteration reads all of them.
//
// "Cold": the files' data is put out of the page cache before each iteration. The counter is what came from
// the disk, in kB a file. Fair figures need --benchmark_repetitions=5
// --benchmark_enable_random_interleaving=true
#include "photo/exif_reader.h"
#include "photo/section_read_ahead.h"
#include "platform_linux/services.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <libexif/exif-data.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace
{

std::vector<std::string> Photos()
{
    std::vector<std::string> photos;
    const char* const folder = std::getenv("KELVO_EXIF_CORPUS");
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(folder ? folder : "corpus", ignored))
        if (entry.path().extension() == ".jpg")
            photos.push_back(entry.path());
    std::ranges::sort(photos);
    return photos;
}

void PutOutOfCache(const std::vector<std::string>& photos)
{
    for (const std::string& photo : photos) {
        const int file = open(photo.c_str(), O_RDONLY | O_CLOEXEC);
        posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        close(file);
    }
}

// What this process has had the disk read so far.
double BytesFromDisk()
{
    std::ifstream facts("/proc/self/io");
    std::string name;
    double number = 0;
    while (facts >> name >> number && name != "read_bytes:") {
    }
    return number;
}

using ReadAll = int (*)(const std::vector<std::string>& photos);

// How many photos had a block that could be read.
int WithReader(const std::vector<std::string>& photos)
{
    int found = 0;
    photo::CSectionReadAhead files(photos);
    for (std::size_t i = 0; i < photos.size(); ++i) {
        photo::CExifReader reader;
        if (photo::CSectionInput* const input = files.Next(); input && reader.ReadJpegSections(*input))
            found += reader.Record().IsExif ? 1 : 0;
    }
    return found;
}

int WithLibrary(const std::vector<std::string>& photos)
{
    int found = 0;
    for (const std::string& photo : photos) {
        ExifData* const data = exif_data_new_from_file(photo.c_str());
        found += data && data->ifd[EXIF_IFD_0]->count > 0 ? 1 : 0;
        exif_data_unref(data);
    }
    return found;
}

void Measure(benchmark::State& state, ReadAll readAll, bool cold)
{
    const std::vector<std::string> photos = Photos();
    if (photos.empty() || readAll(photos) != static_cast<int>(photos.size())) {
        state.SkipWithError("no photos: run bench/make_exif_corpus and set KELVO_EXIF_CORPUS");
        return;
    }
    double fromDisk = 0;
    for (auto _ : state) {
        if (cold) {
            state.PauseTiming();
            PutOutOfCache(photos);
            state.ResumeTiming();
        }
        const double before = BytesFromDisk();
        benchmark::DoNotOptimize(readAll(photos));
        fromDisk += BytesFromDisk() - before;
    }
    state.counters["kB"] = benchmark::Counter(fromDisk / 1000 / static_cast<double>(photos.size()),
                                              benchmark::Counter::kAvgIterations);
}

BENCHMARK_CAPTURE(Measure, reader, WithReader, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Measure, libexif, WithLibrary, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Measure, reader_cold, WithReader, true)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Measure, libexif_cold, WithLibrary, true)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv)
{
    platform_linux::CLinuxServices services;
    services.Install();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
