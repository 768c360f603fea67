// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/record_file.h"

#include "handset/handset_deletion.h"
#include "support/faulty_file_system.h"
#include "support/services_guard.h"
#include "support/test_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace
{

using handset::AddHandsetRecord;
using handset::FindHandsetIndex;
using testing::ElementsAre;

std::string Record(std::string name, const std::string& index)
{
    name.resize(260);
    return name + index;
}

class RecordFile : public testing::Test
{
protected:
    support::CTempFolder folder;
    support::CTestFileSystem real;
    support::CFaultyFileSystem files{real};
    support::CServicesGuard guard{files};
    const std::string path = folder.Path("mobilefile.dbs");
};

TEST_F(RecordFile, TheFirstRecordOfThatNameGivesTheIndex)
{
    using namespace std::string_literals;
    const std::string two = Record("a.jpg", "\1\0\0\0"s) + Record("b.jpg", "\2\1\0\x80"s);
    const std::string unended(260, 'x');
    std::string many;
    for (int i = 0; i < 600; ++i)
        many +=
            Record("f" + std::to_string(i), {static_cast<char>(i % 256), static_cast<char>(i / 256), 0, 0});
    struct Case {
        const char* what;
        std::string bytes;
        std::string name;
        int expected;
    };
    const Case kCases[] = {
        {"first of two", two, "a.jpg", 1},
        {"second of two, negative", two, "b.jpg", static_cast<int>(0x80000102)},
        {"another name", two, "c.jpg", 0},
        {"part of a name", two, "a.jp", 0},
        {"other case", two, "A.jpg", 0},
        {"no name", two, "", 0},
        {"empty file", "", "a.jpg", 0},
        {"bytes behind the name's end", Record("a.jpg\0rest"s, "\7\0\0\0"s), "a.jpg", 7},
        {"twice", two + Record("a.jpg", "\5\0\0\0"s), "a.jpg", 1},
        {"cut in the index", two.substr(0, 526), "b.jpg", 0},
        {"cut before the index", two.substr(0, 524), "b.jpg", 0},
        {"name without an end", unended + "\3\0\0\0"s, unended, 3},
        {"far back", many, "f599", 599},
    };
    for (const Case& item : kCases) {
        SCOPED_TRACE(item.what);
        folder.Make("mobilefile.dbs", item.bytes);

        EXPECT_EQ(FindHandsetIndex(path, item.name), item.expected);
    }
    EXPECT_EQ(FindHandsetIndex(folder.Path("none.dbs"), "a.jpg"), 0);
}

TEST_F(RecordFile, AnAddedRecordStandsBehindWholeOnes)
{
    using namespace std::string_literals;
    const std::string a = Record("a.jpg", "\1\0\0\0"s);
    struct Case {
        const char* what;
        std::string before, name;
        int index;
        std::string after;
    };
    const Case kCases[] = {
        {"into an empty file", "", "a.jpg", 1, a},
        {"behind another", a, "b.jpg", 0x7FFFFFFF, a + Record("b.jpg", "\xFF\xFF\xFF\x7F")},
        {"in place of the rest of a killed one", a + "b.jp", "b.jpg", 2, a + Record("b.jpg", "\2\0\0\0"s)},
        {"a known name", a + Record("b", "\2\0\0\0"s), "a.jpg", 9,
         Record("a.jpg", "\x09\0\0\0"s) + Record("b", "\2\0\0\0"s)},
        {"the longest name", "", std::string(259, 'n'), 1, Record(std::string(259, 'n'), "\1\0\0\0"s)},
        {"too long a name", a, std::string(260, 'n'), 1, ""},
        {"a path", a, "../b.jpg", 1, ""},
        {"a folder", a, "..", 1, ""},
        {"a zero in the name", a, "b\0.jpg"s, 1, ""},
        {"no index", a, "b.jpg", 0, ""},
    };
    for (const Case& item : kCases) {
        SCOPED_TRACE(item.what);
        folder.Make("mobilefile.dbs", item.before);

        EXPECT_EQ(AddHandsetRecord(path, item.name, item.index), !item.after.empty());

        EXPECT_EQ(support::ReadBytes(path), item.after.empty() ? item.before : item.after);
    }
}

TEST_F(RecordFile, AFaultAtAnyStepKeepsTheEarlierRecords)
{
    for (const auto fault : {support::Fault::fail, support::Fault::cutShort, support::Fault::stop}) {
        std::size_t step = 0;
        for (bool added = false; !added; ++step) {
            ASSERT_LT(step, 20U);
            folder.Make("mobilefile.dbs", Record("a.jpg", std::string("\1\0\0", 4)) + "b.jp");
            files.steps = 0;
            files.faultyStep = step;
            files.fault = fault;

            added = AddHandsetRecord(path, "b.jpg", 2);

            files.faultyStep = support::CFaultyFileSystem::kNever;
            EXPECT_EQ(FindHandsetIndex(path, "a.jpg"), 1);
            EXPECT_EQ(FindHandsetIndex(path, "b.jpg") == 2, added);
            EXPECT_TRUE(AddHandsetRecord(path, "c.jpg", 3));
            EXPECT_EQ(FindHandsetIndex(path, "c.jpg"), 3);
        }
        EXPECT_GT(step, 1U) << "no step failed";
    }
}

TEST_F(RecordFile, ANewRecordFileIsEmptyAndAnOldOneStays)
{
    ASSERT_TRUE(handset::MakeRecordFile(path));
    EXPECT_EQ(support::ReadBytes(path), "");
    folder.Make("mobilefile.dbs", "kept");

    EXPECT_TRUE(handset::MakeRecordFile(path));

    EXPECT_EQ(support::ReadBytes(path), "kept");
    EXPECT_FALSE(handset::MakeRecordFile(folder.Path("none/mobilefile.dbs")));
}

}  // namespace
