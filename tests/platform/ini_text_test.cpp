// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/ini_text.h"

#include <gtest/gtest.h>

namespace
{

using platform_linux::CIniText;

TEST(IniText, ChangesOneValueAndNothingElse)
{
    const std::string odd("[s]\r\n\xFF\xE9=1\r\nz\0z=2\r\n", 18);
    const std::string oddAfter("[s]\r\n\xFF\xE9=1\r\nz\0z=2\r\nk=v\r\n", 23);
    struct Case {
        const char* what;
        std::string before;
        std::string after;
    };
    for (const Case& c : {
             Case{"an empty file", "", "[S]\nk=v\n"},
             Case{"a known key", "[s]\nK = old ; no comment\nb=2\n", "[s]\nK = v\nb=2\n"},
             Case{"an empty value", "[s]\n k =\n", "[s]\n k =v\n"},
             Case{"a value of blanks", "[s]\nk= \t \n", "[s]\nk=v \t \n"},
             Case{"a new key, before the blank lines", "[s]\na=1\n;c\n\n\n[t]\n",
                  "[s]\na=1\n;c\nk=v\n\n\n[t]\n"},
             Case{"an empty section", "[s]\n[t]\nk=1\n", "[s]\nk=v\n[t]\nk=1\n"},
             Case{"a new section", "[t]\nk=1\n", "[t]\nk=1\n\n[S]\nk=v\n"},
             Case{"no line end at the end", "[s]\na=1", "[s]\na=1\nk=v\n"},
             Case{"a section without line end", "x\r\n[s]", "x\r\n[s]\r\nk=v\r\n"},
             Case{"a text of one letter", "x", "x\n\n[S]\nk=v\n"},
             Case{"a byte order mark", "\xEF\xBB\xBF[s]\nk=1\n", "\xEF\xBB\xBF[s]\nk=v\n"},
             Case{"nothing but the mark", "\xEF\xBB\xBF", "\xEF\xBB\xBF[S]\nk=v\n"},
             Case{"Windows line ends", "; c\r\n\r\n[ s ]\r\nk=1\r\n", "; c\r\n\r\n[ s ]\r\nk=v\r\n"},
             Case{"a key of another section", "k=0\n[t]\nk=1\n[s]\nkk=2\n",
                  "k=0\n[t]\nk=1\n[s]\nkk=2\nk=v\n"},
             Case{"a key in a comment", "[s]\n;k=1\n", "[s]\n;k=1\nk=v\n"},
             Case{"a key twice", "[s]\nk=1\nK=2\n", "[s]\nk=v\nK=2\n"},
             Case{"a section twice", "[s]\na=1\n[S]\nk=2\n", "[s]\na=1\n[S]\nk=v\n"},
             Case{"a section that is not closed", "[s\nk=1\n", "[s\nk=v\n"},
             Case{"only an opening bracket", "[", "[\n\n[S]\nk=v\n"},
             Case{"bytes of no encoding", odd, oddAfter},
         }) {
        CIniText text(c.before);

        EXPECT_TRUE(text.Set("S", "k", "v")) << c.what;

        EXPECT_EQ(text.Text(), c.after) << c.what;
        EXPECT_EQ(text.Value("s", "K"), "v") << c.what;
    }
}

TEST(IniText, RefusesWhatCannotStandInALine)
{
    const std::string before = "[s]\na=1\n";
    struct Case {
        std::string section, key, value;
    };
    for (const Case& c :
         {Case{"s", "a", "1\n[t]"}, Case{"s", "a", "1\rb"}, Case{"s", "a", std::string("1\0", 2)},
          Case{"s", "a=b", "1"}, Case{"s", ";a", "1"}, Case{"s", "[a", "1"}, Case{"s", "", "1"},
          Case{"s", "a\n", "1"}, Case{"t\n", "a", "1"}, Case{"s", "a", " 1"}, Case{"s", " a", "1"},
          Case{"s", "a", std::string(CIniText::kMostBytes, 'v')},
          Case{"new", "a", std::string(CIniText::kMostBytes - 16, 'v')}}) {
        CIniText text(before);

        EXPECT_FALSE(text.Set(c.section, c.key, c.value)) << c.section << '/' << c.key;

        EXPECT_TRUE(text.Text() == before);
        EXPECT_EQ(text.Value("s", "a"), "1");
    }
}

TEST(IniText, RemovesEveryLineOfAKeyAndOnlyThose)
{
    struct Case {
        const char* before;
        const char* after;
    };
    for (const Case& c : {Case{"[s]\nk=1\nb=2\n K = 3\n[t]\nk=4\n", "[s]\nb=2\n[t]\nk=4\n"},
                          Case{"[s]\r\nk=1", "[s]\r\n"}, Case{"[t]\nk=1\n", "[t]\nk=1\n"}}) {
        CIniText text(c.before);

        text.Remove("S", "k");

        EXPECT_EQ(text.Text(), c.after);
        EXPECT_FALSE(text.Value("s", "k"));
    }
}

TEST(IniText, StaysQuickOnFilesMadeToBeSlow)
{
    std::string many;
    while (many.size() + 20 < CIniText::kMostBytes)
        many += "[s]\na=1\nk\n[t]\n=\n";
    CIniText text(many);

    text.Remove("s", "a");

    EXPECT_TRUE(text.Set("s", "k", "v"));
    EXPECT_EQ(text.Value("S", "K"), "v");
    EXPECT_FALSE(CIniText::IsUsable(std::string(CIniText::kMostBytes + 1, ' ')));
}

}  // namespace
