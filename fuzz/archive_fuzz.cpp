// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as an archive: it is listed, searched, extracted, changed and compacted. Whatever could be read
// before a change must be readable after it.
#include "archive/package_archive.h"
#include "support/services_guard.h"
#include "support/test_file_system.h"

#include <cstdlib>

namespace
{

using archive::CPackageArchive;
using Mode = CPackageArchive::Mode;

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

// The names and data of the members that are not deleted.
std::string Contents(CPackageArchive& source)
{
    std::string all;
    for (std::size_t i = 0; i < source.Count(); ++i) {
        std::string data;
        if (source.Member(i).deleted)
            continue;
        all += source.Member(i).name + '=';
        all += source.ExtractToMemory(i, data) ? std::to_string(data.size()) + data : "?";
        Require(source.Member(i).name.empty() || source.FindExact(source.Member(i).name) <= i);
    }
    return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static support::CTestFileSystem files;
    static const support::CServicesGuard guard(files);
    // In memory where possible: a disk would be waited for at each replacement.
    static const support::CTempFolder folder(std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp");
    static const std::string source = folder.Make("added", "some text");
    static const std::string extracted = folder.Path("extracted");
    files.CreateDirectory(extracted);
    const std::string path = folder.Make("fuzz.db", std::string(reinterpret_cast<const char*>(data), size));

    CPackageArchive target;
    Require(target.Open(path, Mode::readWrite));
    const std::string before = Contents(target);
    if (target.Count() > 0)
        target.ExtractToFolder(target.Count() - 1, extracted);
    const bool added = target.AddFile(source, {});
    Require(target.Close(true) == added);
    files.Open(path, platform::OpenMode::readWrite)->MarkChanged();

    Require(target.Open(path, Mode::readWrite));
    Require(Contents(target) == before + (added ? "added=9some text" : ""));
    if (added) {
        Require(target.SetTexts(target.Count() - 1, "caption", "stamp", "second"));
        Require(target.Remove(0));
    }
    Require(target.Close(true) == added);
    std::filesystem::remove_all(extracted);
    return 0;
}
