// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/local_time.h"

#include <chrono>
#include <ctime>

namespace photo
{

namespace
{

constexpr std::uint64_t kStepsPerSecond = 10'000'000;
constexpr std::int64_t kSecondsTo1970 = 11'644'473'600;  // from 1601
constexpr int kFirstYear = 1601;
constexpr int kLastYear = 9999;

bool IsInCalendar(const ExifDate& date)
{
    using namespace std::chrono;
    if (date.year < kFirstYear || date.year > kLastYear || date.month < 1 || date.day < 1) {
        return false;
    }
    const year_month_day day{year{date.year}, month{static_cast<unsigned>(date.month)},
                             std::chrono::day{static_cast<unsigned>(date.day)}};
    return day.ok() && date.hour >= 0 && date.hour < 24 && date.minute >= 0 && date.minute < 60 &&
           date.second >= 0 && date.second < 60;
}

}  // namespace

std::optional<platform::FileTime> LocalToFileTime(const ExifDate& date)
{
    if (!IsInCalendar(date)) {
        return std::nullopt;
    }
    std::tm parts{};
    parts.tm_year = date.year - 1900;
    parts.tm_mon = date.month - 1;
    parts.tm_mday = date.day;
    parts.tm_hour = date.hour;
    parts.tm_min = date.minute;
    parts.tm_sec = date.second;
    parts.tm_isdst = -1;
    const std::int64_t seconds = std::mktime(&parts) + kSecondsTo1970;
    if (seconds <= 0) {
        return std::nullopt;
    }
    return static_cast<platform::FileTime>(seconds) * kStepsPerSecond;
}

ExifDate FileTimeToLocal(platform::FileTime time)
{
    const auto seconds =
        static_cast<std::time_t>(static_cast<std::int64_t>(time / kStepsPerSecond) - kSecondsTo1970);
    std::tm parts{};
    if (!localtime_r(&seconds, &parts)) {
        return {};
    }
    ExifDate date;
    date.year = parts.tm_year + 1900;
    date.month = parts.tm_mon + 1;
    date.day = parts.tm_mday;
    date.hour = parts.tm_hour;
    date.minute = parts.tm_min;
    date.second = parts.tm_sec;
    return date;
}

}  // namespace photo
