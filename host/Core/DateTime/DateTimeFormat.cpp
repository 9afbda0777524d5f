#include "Core/DateTime/DateTimeFormat.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace qev::datetime {

namespace {

std::string padded(int number, std::size_t width)
{
    std::string const digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// Reads exactly \p count digits from the start of \p text.
std::optional<int> takeNumber(std::string_view& text, std::size_t count)
{
    if (text.size() < count)
        return std::nullopt;
    int number = 0;
    for (char const character : text.substr(0, count)) {
        if (!str::isDigit(character))
            return std::nullopt;
        number = number * 10 + (character - '0');
    }
    text.remove_prefix(count);
    return number;
}

bool takeCharacter(std::string_view& text, char character)
{
    if (!text.starts_with(character))
        return false;
    text.remove_prefix(1);
    return true;
}

std::string dateText(std::chrono::year_month_day date, DateForm form)
{
    std::string const year = padded(static_cast<int>(date.year()), 4);
    std::string const month = padded(static_cast<int>(static_cast<unsigned>(date.month())), 2);
    std::string const day = padded(static_cast<int>(static_cast<unsigned>(date.day())), 2);
    switch (form) {
    case DateForm::None:
        break;
    case DateForm::Compact:
        return year + month + day;
    case DateForm::Iso:
        return year + "-" + month + "-" + day;
    case DateForm::DayFirst:
        return day + "." + month + "." + year;
    }
    return {};
}

std::string timeText(std::chrono::seconds timeOfDay, TimeForm form)
{
    std::chrono::hh_mm_ss const parts(timeOfDay);
    std::string text = padded(static_cast<int>(parts.hours().count()), 2);
    if (form >= TimeForm::Minutes)
        text += ":" + padded(static_cast<int>(parts.minutes().count()), 2);
    if (form >= TimeForm::Seconds)
        text += ":" + padded(static_cast<int>(parts.seconds().count()), 2);
    return text;
}

std::optional<std::chrono::sys_days> takeDate(std::string_view& text, DateForm form)
{
    std::optional<int> year;
    std::optional<int> month;
    std::optional<int> day;
    char const separator = form == DateForm::Iso ? '-' : '.';
    auto const separated = [&](bool before) {
        return form == DateForm::Compact || !before || takeCharacter(text, separator);
    };
    if (form == DateForm::DayFirst) {
        day = takeNumber(text, 2);
        month = separated(day.has_value()) ? takeNumber(text, 2) : std::nullopt;
        year = separated(month.has_value()) ? takeNumber(text, 4) : std::nullopt;
    } else {
        year = takeNumber(text, 4);
        month = separated(year.has_value()) ? takeNumber(text, 2) : std::nullopt;
        day = separated(month.has_value()) ? takeNumber(text, 2) : std::nullopt;
    }
    if (!year || !month || !day)
        return std::nullopt;
    std::chrono::year_month_day const date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

/// Reads hours, and minutes and seconds as far as they are there; all of \p text has to be read.
std::optional<std::chrono::seconds> takeTime(std::string_view text, TimeForm form)
{
    constexpr std::array<int, 3> limits = {24, 60, 60};
    constexpr std::array<int, 3> secondsIn = {3600, 60, 1};
    int seconds = 0;
    for (std::size_t part = 0; part < static_cast<std::size_t>(form); ++part) {
        if (part > 0 && text.empty())
            break;
        if (part > 0 && !takeCharacter(text, ':'))
            return std::nullopt;
        auto const number = takeNumber(text, 2);
        if (!number || *number >= limits[part])
            return std::nullopt;
        seconds += *number * secondsIn[part];
    }
    return text.empty() ? std::optional(std::chrono::seconds(seconds)) : std::nullopt;
}

} // namespace

DateTimeFormat::DateTimeFormat(DateForm date, TimeForm time)
    : m_date(date)
    , m_time(time)
{
}

DateTimeFormat::DateTimeFormat(int date, int time)
    : m_date(date >= 0 && date <= 3 ? static_cast<DateForm>(date) : DateForm::None)
    , m_time(time >= 0 && time <= 3 ? static_cast<TimeForm>(time) : TimeForm::None)
{
}

std::string DateTimeFormat::toString(std::chrono::sys_seconds time) const
{
    auto const day = std::chrono::floor<std::chrono::days>(time);
    std::string text = dateText(std::chrono::year_month_day(day), m_date);
    if (m_time == TimeForm::None)
        return text;
    if (!text.empty())
        text += ' ';
    return text + timeText(time - day, m_time);
}

std::optional<std::chrono::sys_seconds> DateTimeFormat::fromString(std::string_view text) const
{
    std::chrono::sys_seconds result{};
    if (m_date != DateForm::None) {
        auto const date = takeDate(text, m_date);
        if (!date)
            return std::nullopt;
        result = *date;
        if (text.empty())
            return result;
        if (m_time == TimeForm::None || (!takeCharacter(text, ' ') && !takeCharacter(text, 'T')))
            return std::nullopt;
    }
    auto const timeOfDay = takeTime(text, m_time);
    return timeOfDay ? std::optional(result + *timeOfDay) : std::nullopt;
}

} // namespace qev::datetime
