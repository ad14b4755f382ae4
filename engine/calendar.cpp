#include "engine/calendar.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>

namespace korventally::engine {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

year_month_day dateOf(Hour hour) {
  return year_month_day(std::chrono::floor<std::chrono::days>(
      std::chrono::sys_time<std::chrono::hours>(std::chrono::hours(hour))));
}

Hour firstHourOf(const year_month_day& date) {
  return Hour{sys_days(date).time_since_epoch().count()} * 24;
}

}  // namespace

std::optional<Hour> hourFromDate(std::int64_t year, std::int64_t month, std::int64_t day,
                                 std::int64_t hour) {
  if (year < kEarliestYear || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31)
    return {};
  if (hour < 0 || hour > 24) return {};
  const year_month_day date(std::chrono::year(static_cast<int>(year)),
                            std::chrono::month(static_cast<unsigned>(month)),
                            std::chrono::day(static_cast<unsigned>(day)));
  if (!date.ok()) return {};
  return firstHourOf(date) + hour;
}

std::string dateText(Hour hour, HourCount count) {
  // The first hour of a day is the last of the day before where hours are counted from 1.
  const year_month_day date = dateOf(count == HourCount::kFrom1To24 ? hour - 1 : hour);
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(hour - firstHourOf(date)));
  return text;
}

std::int64_t hourOfDay(Hour hour, HourCount count) {
  const Hour from0 = count == HourCount::kFrom1To24 ? hour - 1 : hour;
  return from0 - firstHourOf(dateOf(from0));
}

Hour yearsAfter(Hour start, int years) {
  const year_month_day date = dateOf(start);
  year_month_day later = date + std::chrono::years(years);
  if (!later.ok()) {
    later = year_month_day(later.year(), std::chrono::March, std::chrono::day(1));
  }
  return firstHourOf(later) + start - firstHourOf(date);
}

std::int64_t hoursOfYearFrom(Hour start) { return yearsAfter(start, 1) - start; }

}  // namespace korventally::engine
