// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/date_taken.h"

#include "platform/image.h"

#include <charconv>
#include <chrono>

namespace browser
{

namespace
{

constexpr std::uint16_t kTagDateTimeDigitized = 36868;
constexpr std::string_view kForm = "0000:00:00 00:00:00";

// The digits of `text` in the stretch given; -1 when there is anything else.
int NumberAt(std::string_view text, std::size_t position, std::size_t length)
{
    int number = -1;
    const char* end = text.data() + position + length;
    const auto read = std::from_chars(text.data() + position, end, number);
    return read.ptr == end && number >= 0 ? number : -1;
}

}  // namespace

platform::FileTime ParseDateTaken(std::string_view text)
{
    using namespace std::chrono;
    if (text.size() < kForm.size()) {
        return 0;
    }
    const year_month_day day{year(NumberAt(text, 0, 4)), month(static_cast<unsigned>(NumberAt(text, 5, 2))),
                             std::chrono::day(static_cast<unsigned>(NumberAt(text, 8, 2)))};
    const int hour = NumberAt(text, 11, 2);
    const int minute = NumberAt(text, 14, 2);
    const int second = NumberAt(text, 17, 2);
    constexpr year kFirstYear(1601);  // where file times begin
    if (!day.ok() || day.year() <= kFirstYear || hour < 0 || hour > 23 || minute < 0 || minute > 59 ||
        second < 0 || second > 59) {
        return 0;
    }
    const auto sinceStart = sys_days(day) - sys_days(kFirstYear / January / 1);
    const seconds moment = sinceStart + hours(hour) + minutes(minute) + seconds(second);
    constexpr platform::FileTime kStepsPerSecond = 10'000'000;
    return static_cast<platform::FileTime>(moment.count()) * kStepsPerSecond;
}

platform::FileTime ReadDateTaken(const std::string& path)
{
    const platform::CImage image(path);
    for (const std::uint16_t tag : {platform::kTagDateTimeOriginal, kTagDateTimeDigitized}) {
        if (const auto property = image.GetPropertyItem(tag)) {
            const std::string text(property->value.begin(), property->value.end());
            if (const platform::FileTime taken = ParseDateTaken(text); taken != 0) {
                return taken;
            }
        }
    }
    return 0;
}

}  // namespace browser
