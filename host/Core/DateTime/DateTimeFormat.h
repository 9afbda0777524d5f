#pragma once

#include "HostCoreExport.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace qev::datetime {

/// How a date is written.
enum class DateForm
{
    None = 0,
    /// 20260131
    Compact = 1,
    /// 2026-01-31
    Iso = 2,
    /// 31.01.2026
    DayFirst = 3
};

/// How a time of day is written.
enum class TimeForm
{
    None = 0,
    /// 14
    Hours = 1,
    /// 14:30
    Minutes = 2,
    /// 14:30:05
    Seconds = 3
};

/// Writes and reads points of time, in UTC: a date, a blank, and a time of day.
class HOSTCORE_EXPORT DateTimeFormat
{
public:
    DateTimeFormat(DateForm date, TimeForm time);

    /// The same with the numbers of the forms; a number that is none means no date, or no time.
    DateTimeFormat(int date, int time);

    [[nodiscard]] std::string toString(std::chrono::sys_seconds time) const;

    /// Reads what `toString` writes. "T" may stand instead of the blank, and the time of day may be left out,
    /// as a whole or from the right; what is left out is zero. Nothing for other texts and for days
    /// that no calendar has. Without a date in the format the day is the first of 1970.
    [[nodiscard]] std::optional<std::chrono::sys_seconds> fromString(std::string_view text) const;

private:
    DateForm m_date;
    TimeForm m_time;
};

} // namespace qev::datetime
