#include "engine/calendar.h"

#include <gtest/gtest.h>

#include "engine/blocks.h"

namespace korventally::engine {
namespace {

// Unix time in hours, from "date -u -d ... +%s".
TEST(Calendar, CountsHoursAsEveryoneDoes) {
  const struct {
    int year, month, day, hour;
    Hour expected;
  } rows[] = {
      {1970, 1, 1, 0, 0},        {1969, 12, 31, 23, -1},     {2000, 2, 29, 12, 264396},
      {2009, 1, 1, 0, 341880},   {2009, 12, 31, 24, 350640}, {2010, 1, 1, 0, 350640},
      {2008, 2, 28, 24, 334512}, {2008, 2, 29, 0, 334512},   {2100, 2, 28, 24, 1140984},
      {2100, 3, 1, 0, 1140984},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(hourFromDate(row.year, row.month, row.day, row.hour), row.expected) << row.year;
  }
}

TEST(Calendar, KnowsWhichDatesThereAre) {
  EXPECT_FALSE(hourFromDate(2009, 2, 29, 0));
  EXPECT_FALSE(hourFromDate(2100, 2, 29, 0));
  EXPECT_TRUE(hourFromDate(2000, 2, 29, 0));
  EXPECT_FALSE(hourFromDate(2009, 4, 31, 0));
  EXPECT_FALSE(hourFromDate(2009, 0, 1, 0));
  EXPECT_FALSE(hourFromDate(2009, 1, 0, 0));
  EXPECT_FALSE(hourFromDate(2009, 1, 1, 25));
  EXPECT_FALSE(hourFromDate(10000, 1, 1, 0));
  EXPECT_FALSE(hourFromDate(1899, 12, 31, 23));
  EXPECT_TRUE(hourFromDate(1900, 1, 1, 0));
}

TEST(Calendar, WritesDatesAsTheHoursAreCounted) {
  EXPECT_EQ(dateText(341880), "2009-01-01 00");
  EXPECT_EQ(dateText(341880 - 1), "2008-12-31 23");
  EXPECT_EQ(dateText(341880, HourCount::kFrom1To24), "2008-12-31 24");
  EXPECT_EQ(dateText(341880 + 1, HourCount::kFrom1To24), "2009-01-01 01");
  EXPECT_EQ(hourOfDay(341880, HourCount::kFrom1To24), 23);
  EXPECT_EQ(hourOfDay(341880, HourCount::kUnknown), 0);
}

TEST(Calendar, KnowsTheLengthOfTheYearFromAnyStart) {
  EXPECT_EQ(hoursOfYearFrom(*hourFromDate(2009, 1, 1, 0)), 8760);
  EXPECT_EQ(hoursOfYearFrom(*hourFromDate(2008, 1, 1, 0)), 8784);
  EXPECT_EQ(hoursOfYearFrom(*hourFromDate(2007, 7, 1, 5)), 8784);
  EXPECT_EQ(hoursOfYearFrom(*hourFromDate(2008, 2, 29, 0)), 8784);
  EXPECT_EQ(hoursOfYearFrom(*hourFromDate(2008, 3, 1, 0)), 8760);
}

struct Plan {
  const char* what;
  std::int64_t run, averaging;
  std::int64_t hours, count, unused;
};

TEST(Blocks, CutTheRunIntoAveragingPeriods) {
  const Plan plans[] = {
      {"a year of days", 8760, 24, 24, 365, 0}, {"a rest", 100, 24, 24, 4, 4},
      {"exactly one", 24, 24, 24, 1, 0},        {"annual", 8760, 8760, 8760, 1, 0},
      {"short annual", 168, 8784, 168, 1, 0},   {"a long block", 8760, 8759, 8759, 1, 1},
  };
  for (const Plan& plan : plans) {
    SCOPED_TRACE(plan.what);
    Case theCase;
    theCase.start = *hourFromDate(2009, 1, 1, 0);
    theCase.runHours = plan.run;
    theCase.averagingHours = plan.averaging;
    const Blocks blocks = planBlocks(theCase);
    EXPECT_EQ(blocks.hours, plan.hours);
    EXPECT_EQ(blocks.count, plan.count);
    EXPECT_EQ(blocks.unused, plan.unused);
    EXPECT_EQ(blocks.end(), theCase.start + plan.run - plan.unused);
  }
}

}  // namespace
}  // namespace korventally::engine
