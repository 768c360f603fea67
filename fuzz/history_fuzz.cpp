// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The caption history and the book of captions: any bytes are "cap_db.ini" and "captions.tsv". A caption that
// is remembered is there afterwards, once, beside all that was there before; what is put in the book is found
// there.
#include "browser/caption_book.h"
#include "photo/caption_history.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_profiles.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const support::CTempFolder folder;
    static platform_linux::CLinuxFileSystem files;
    platform_linux::CLinuxProfiles profiles({}, {});
    const support::CServicesGuard guard{platform::Services{&files, nullptr, &profiles}};
    folder.Make("cap_db.ini", std::string(reinterpret_cast<const char*>(data), size));
    const photo::CCaptionHistory history(folder.Path("ThumbDB"));

    const std::vector<std::string> before = history.Captions();
    const bool isKept = history.Remember("a caption of the fuzzer", true);
    const std::vector<std::string> after = history.Captions();

    const bool holdsAll = std::ranges::all_of(
        before, [&](const std::string& caption) { return std::ranges::count(after, caption) == 1; });
    const bool isFull = before.size() >= 5'000;
    if (!holdsAll || (isKept && !isFull && std::ranges::count(after, "a caption of the fuzzer") != 1))
        std::abort();

    folder.Make("captions.tsv", std::string(reinterpret_cast<const char*>(data), size));
    browser::CCaptionBook book(folder.Path("ThumbDB"));
    const browser::CaptionedFile file{"a.jpg", size, 2, {"caption", "2004/05/17", "sec\tond"}};
    if (book.Record(std::span(&file, 1)) &&
        browser::CCaptionBook(folder.Path("ThumbDB")).Find("a.jpg", size, 2) != file.texts)
        std::abort();
    return 0;
}
