// Moments of the clock on the wall, for what the list file says about when and from what it came.
#pragma once

#include <cstdint>
#include <string>

namespace korventally::engine {

/// Now, in seconds since 1970-01-01 00:00 UTC.
std::int64_t secondsNow();

/// "2026-01-31 07:05:09 +01:00": this second in the local time of the system, and how far that is
/// ahead of UTC at that moment.
std::string localTimeText(std::int64_t seconds);

}  // namespace korventally::engine
