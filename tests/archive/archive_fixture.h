// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the archive share: a folder of files, and archives made by hand, byte by byte.
#pragma once

#include "archive/package_archive.h"
#include "support/services_guard.h"
#include "support/test_file_system.h"

#include <gtest/gtest.h>

#include <random>

// "hello" at level 6.
inline const std::string kHelloStream("\x78\x9c\xcb\x48\xcd\xc9\xc9\x07\x00\x06\x2c\x02\x15", 13);

inline std::string Number(std::uint64_t value, int width)
{
    std::string bytes;
    for (int i = 0; i < width; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i)));
    return bytes;
}

inline std::string HandMadeHeader(std::uint32_t count)
{
    return "*QRX" + Number(count, 4) + Number(0, 8);
}

struct HandMade {
    std::string name = "a.jpg";
    std::string extra = {}, caption = {}, stamp = {}, second = {};
    std::uint64_t originalSize = 5, created = 0x0102030405060708, modified = 0x1112131415161718, third = 0;
    int deleted = 0;
    std::string data = kHelloStream;
    std::uint64_t claimedSize = ~0ULL;  // of the data, when it is a lie

    std::string Bytes() const
    {
        return Number(name.size(), 2) + Number(extra.size(), 2) + Number(caption.size(), 2) +
               Number(stamp.size(), 2) + Number(second.size(), 2) + Number(originalSize, 8) +
               Number(claimedSize == ~0ULL ? data.size() : claimedSize, 4) + Number(created, 8) +
               Number(modified, 8) + Number(third, 8) + Number(deleted, 2) + name + extra + caption + stamp +
               second + data;
    }
};

inline std::string Noise(std::size_t size)
{
    std::mt19937 random(static_cast<unsigned>(size));
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

class CArchiveFixture : public testing::Test
{
protected:
    using Mode = archive::CPackageArchive::Mode;

    // Writes a file of these bytes and adds it under its name.
    bool AddText(archive::CPackageArchive& target, const std::string& name, const std::string& bytes) const
    {
        return target.AddFile(folder.Make(name, bytes), {.facts = archive::SourceFacts{1, 2, bytes.size()}});
    }
    // The archive's path in a spelling not used before, for which this process has no index at hand.
    std::string FreshPath() const
    {
        static std::size_t number = 0;
        return folder.Path("./" + std::string(++number, '/') + "p.db");
    }
    // "name=data" of each member that can be found and extracted, in order, as another process sees them.
    std::string Contents() const
    {
        archive::CPackageArchive fresh;
        fresh.SetPatience(0);
        if (!fresh.Open(FreshPath(), Mode::read))
            return "cannot be opened";
        std::string contents;
        for (std::size_t i = 0; i < fresh.Count(); ++i) {
            std::string data;
            if (fresh.Member(i).deleted)
                continue;
            contents += fresh.Member(i).name + '=';
            contents += (fresh.ExtractToMemory(i, data) ? data : "?") + fresh.Member(i).caption + ' ';
        }
        return contents;
    }

    support::CTempFolder folder;
    support::CTestFileSystem files;
    support::CServicesGuard guard{files};
    const std::string path = folder.Path("p.db");
};
