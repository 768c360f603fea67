// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz entry without a fuzzer: over each file of a folder, and over variations of it that are the same
// at every run.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace
{

constexpr int kVariations = 200;

void Run(const std::string& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

// Changes, drops or repeats some bytes.
std::string Variation(std::string bytes, std::mt19937& random)
{
    for (unsigned change = 0; change <= random() % 4 && !bytes.empty(); ++change) {
        const std::size_t place = random() % bytes.size();
        switch (random() % 5) {
        case 0:
            bytes[place] = static_cast<char>(random());
            break;
        case 1:
            bytes[place] = random() % 2 == 0 ? '\xff' : '\0';
            break;
        case 2:
            bytes.resize(place);
            break;
        case 3:
            bytes.erase(place, random() % 16);
            break;
        default:
            bytes.insert(place, bytes.substr(random() % bytes.size(), random() % 64));
            break;
        }
    }
    return bytes;
}

}  // namespace

int main(int argc, char** argv)
{
    int files = 0;
    std::mt19937 random(1);
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            std::printf("%s\n", entry.path().c_str());
            Run(bytes);
            for (int j = 0; j < kVariations; ++j)
                Run(Variation(bytes, random));
            ++files;
        }
    }
    return files > 0 ? 0 : 1;
}
