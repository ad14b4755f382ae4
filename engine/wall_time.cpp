#include "engine/wall_time.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "engine/calendar.h"
#include "engine/system_files.h"

namespace korventally::engine {

std::int64_t secondsNow() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::floor<std::chrono::seconds>(now).count();
}

std::string localTimeText(std::int64_t seconds) {
  const std::int64_t offset = localOffsetAt(seconds);
  const std::chrono::seconds local(seconds + offset);
  const auto hour = std::chrono::floor<std::chrono::hours>(local);
  const auto beyond = static_cast<int>((local - hour).count());
  const auto minutes = static_cast<int>(std::abs(offset) / 60);
  char text[32];
  std::snprintf(text, sizeof text, ":%02d:%02d %c%02d:%02d", beyond / 60, beyond % 60,
                offset < 0 ? '-' : '+', minutes / 60, minutes % 60);
  return dateText(hour.count()) + text;
}

}  // namespace korventally::engine
