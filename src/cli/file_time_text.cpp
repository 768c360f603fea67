// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/file_time_text.h"

#include <fmt/format.h>

#include <chrono>

namespace cli
{

std::string FileTimeText(platform::FileTime time)
{
    using namespace std::chrono;
    if (time == 0) {
        return {};
    }
    constexpr std::uint64_t kStepsPerSecond = 10'000'000;
    const sys_days epoch = year{1601} / January / 1;
    const sys_seconds whole = epoch + seconds(time / kStepsPerSecond);
    const sys_days day = floor<days>(whole);
    const year_month_day date(day);
    const hh_mm_ss clock(whole - day);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       clock.hours().count(), clock.minutes().count(), clock.seconds().count());
}

}  // namespace cli
