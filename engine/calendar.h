// Hours as one running number, so that a gap is a subtraction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace korventally::engine {

/// Hours since 1 January 1970, hour 0, in the proleptic Gregorian calendar.
using Hour = std::int64_t;

/// How a file counts the hours of a day: 0 to 23, or 1 to 24 as dispersion models do, where the
/// number names the hour's end. A file of a few hours may show neither hour 0 nor hour 24.
enum class HourCount { kUnknown, kFrom0To23, kFrom1To24 };

inline constexpr std::int64_t kEarliestYear = 1900;  ///< so that "10" is not taken for 2010

/// The hour with this date, or nothing when there is no such date. Years 1900 to 9999; hours 0 to
/// 24, where hour 24 of a day is hour 0 of the next.
std::optional<Hour> hourFromDate(std::int64_t year, std::int64_t month, std::int64_t day,
                                 std::int64_t hour);

/// "2009-01-31 07": hours 00 to 23, or 01 to 24 where they are counted so.
std::string dateText(Hour hour, HourCount count = HourCount::kFrom0To23);

/// 0 to 23: how many hours of its day, as these are counted, come before this one.
std::int64_t hourOfDay(Hour hour, HourCount count);

/// The same date and hour so many years later; 29 February gives 1 March where it has no namesake.
Hour yearsAfter(Hour start, int years);

/// Hours from this hour to the same date and hour one year later: 8760 or 8784.
std::int64_t hoursOfYearFrom(Hour start);

}  // namespace korventally::engine
