#include "engine/wall_time.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace korventally::engine {
namespace {

TEST(WallTime, ShowsLocalTimeWithItsOffset) {
  const char* const before = std::getenv("TZ");
  const std::string kept = before == nullptr ? "" : before;
  const struct {
    const char* zone;
    std::int64_t seconds;
    const char* text;
  } rows[] = {
      {"UTC0", 0, "1970-01-01 00:00:00 +00:00"},
      {"CET-1CEST,M3.5.0,M10.5.0/3", 1263340805, "2010-01-13 01:00:05 +01:00"},
      {"CET-1CEST,M3.5.0,M10.5.0/3", 1278979200, "2010-07-13 02:00:00 +02:00"},
      {"NST3:30", 1263340859, "2010-01-12 20:30:59 -03:30"},
  };
  for (const auto& row : rows) {
    ::setenv("TZ", row.zone, 1);
    ::tzset();
    EXPECT_EQ(localTimeText(row.seconds), row.text);
  }
  before == nullptr ? ::unsetenv("TZ") : ::setenv("TZ", kept.c_str(), 1);
  ::tzset();
}

}  // namespace
}  // namespace korventally::engine
