// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/acquire/sane_sources.h"

#include <gmock/gmock.h>

#include <cstdlib>

TEST(SaneSources, AreListedByNameEachTimeAnewAndAreNothingWhenSaneDoesNotOpen)
{
    suite::CSaneSources sane(KELVO_FAKE_SANE);

    for (int time = 0; time < 2; ++time) {
        const auto sources = sane.Sources();
        ASSERT_TRUE(sources);
        EXPECT_THAT(*sources, testing::ElementsAre(platform::PictureSource{"pixma:1", "Halden Flat 20"},
                                                   platform::PictureSource{"test:0", "frontend-tester"},
                                                   platform::PictureSource{"net:x", "net:x"}));
    }
    EXPECT_FALSE(suite::CSaneSources("libkelvo-no-such-library.so.1").Sources());
    for (const char* fault : {"silent", "broken"}) {
        setenv("FAKE_SANE", fault, 1);
        EXPECT_FALSE(sane.Sources()) << fault;
    }
    unsetenv("FAKE_SANE");
}
