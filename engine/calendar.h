// Hours as one running number, so that a gap is a subtraction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace korventally::engine {

/// Hours since 1 January 1970, hour 0, in the proleptic Gregorian calendar.
using Hour = std::int64_t;

/// The hour with this date, or nothing when there is no such date. Years 1 to 9999; hours 0 to 24,
/// where hour 24 of a day is hour 0 of the next: models use both ways of counting.
std::optional<Hour> hourFromDate(std::int64_t year, std::int64_t month, std::int64_t day,
                                 std::int64_t hour);

/// "2009-01-31 07": hours 00 to 23.
std::string dateText(Hour hour);

/// Hours from this hour to the same date and hour one year later: 8760 or 8784.
std::int64_t hoursOfYearFrom(Hour start);

}  // namespace korventally::engine
