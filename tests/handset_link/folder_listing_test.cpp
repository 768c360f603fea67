// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/folder_listing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using suite::ReadFolderListing;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Names(const std::string& listing)
{
    std::vector<std::string> names;
    for (const suite::ListedFile& file : ReadFolderListing(listing, 6))
        names.push_back(file.name + ":" + std::to_string(file.size));
    return names;
}

TEST(FolderListing, FilesAreFoundInWhateverAHandsetCallsAListing)
{
    const std::string plain = "<file name=\"a.jpg\" size=\"12\"/>";
    EXPECT_THAT(Names("<?xml version=\"1.0\"?><folder-listing><parent-folder/><folder name=\"f\"/>" + plain),
                ElementsAre("a.jpg:12"));
    EXPECT_THAT(Names("<file size='3'\nname = 'it\"s'></file>" + plain), ElementsAre("a.jpg:12", "it\"s:3"));
    EXPECT_THAT(Names("<file name=\"b &amp; c &#x20AC;&#233; &no; & >\"/>"),
                ElementsAre("b & c \u20AC\u00E9 &no; & >:0"));
    EXPECT_THAT(Names("<file/><file name=\"\"/><file name=\"x&#0;y\"/><filename name=\"z\"/>"), IsEmpty());
    EXPECT_THAT(Names("<file bare name=a" + plain), ElementsAre("a.jpg:12"));
    EXPECT_THAT(Names("<file / = name=\"z\" size=\"99999999999999999999\"/>"), ElementsAre("z:0"));
    EXPECT_THAT(Names(plain + "<file name=\"cut"), ElementsAre("a.jpg:12"));
    EXPECT_THAT(Names(""), IsEmpty());
}

TEST(FolderListing, AnIndexStaysWithItsNameAndCategory)
{
    const std::string a = "<file name=\"a\"/>";
    const std::string b = "<file name=\"b\"/>";
    const auto both = ReadFolderListing(b + a, 6);

    EXPECT_EQ(ReadFolderListing(a, 6).front(), both.front());
    EXPECT_EQ(ReadFolderListing(b, 6).front(), both.back());
    EXPECT_NE(ReadFolderListing(a, 7).front().index, both.front().index);
    EXPECT_EQ(ReadFolderListing(a + a, 6).size(), 1U);
}

TEST(FolderListing, OfTwoNamesWithOneIndexTheSecondTakesTheNext)
{
    const auto files = ReadFolderListing("<file name=\"vusietdp\"/><file name=\"eqoseryf\"/>", 6);

    EXPECT_THAT(files, ElementsAre(suite::ListedFile{"eqoseryf", 0, 1623797941},
                                   suite::ListedFile{"vusietdp", 0, 1623797942}));
}

TEST(FolderListing, AListingWithoutEndIsCut)
{
    std::string listing;
    for (std::size_t i = 0; i <= suite::kMostListedFiles; ++i)
        listing += "<file name=\"" + std::to_string(i) + "\"/>";

    EXPECT_EQ(ReadFolderListing(listing, 6).size(), suite::kMostListedFiles);
}

TEST(LocalName, NamesAVisibleFileAndNoPath)
{
    using namespace std::string_literals;
    const std::pair<std::string, std::string> kCases[] = {
        {"IMG 1.jpg", "IMG 1.jpg"},
        {"../x", "_._x"},
        {"..", "_."},
        {".profile", "_profile"},
        {"a/b\\c:d", "a_b_c:d"},
        {"tab\tline\n\x7F.mmf", "tab_line__.mmf"},
        {"zero\0.jpg"s, "zero_.jpg"},
        {"\u00FC\xFF\xC3.jpg", "\u00FC__.jpg"},
        {"", "_"},
        {std::string(300, 'n') + ".jpg", std::string(236, 'n') + ".jpg"},
        {"a" + std::string(298, '.'), "a" + std::string(238, '.') + "."},
    };
    for (const auto& [handsetName, expected] : kCases)
        EXPECT_EQ(suite::LocalName(handsetName), expected);
    std::string wide;
    for (int i = 0; i < 100; ++i)
        wide += "\u20AC";
    EXPECT_EQ(suite::LocalName("x" + wide), "x" + wide.substr(0, 237));
}

}  // namespace
