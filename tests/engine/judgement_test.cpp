// What is judged, what is left out, and what is shown of it, worked out by hand.
#include "engine/judgement.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

TEST(RunYears, AreCountedFromTheStartOfTheRun) {
  const struct {
    int year, month, day, hour;
    std::int64_t hours, count;
    std::vector<std::size_t> blocks;  // in each year
    std::int64_t lastHours, lastWhole;
  } rows[] = {
      {2009, 1, 1, 0, 24, 364, {364}, 8736, 8760},
      {2009, 1, 1, 0, 24, 366, {365, 1}, 24, 8760},
      {2008, 7, 1, 5, 24, 730, {365, 365}, 8760, 8760},
      {2007, 7, 1, 5, 24, 731, {366, 365}, 8760, 8760},
      // The block that begins in the first year's last hours belongs to it.
      {2009, 1, 1, 0, 7, 1260, {1252, 8}, 60, 8760},
      {2009, 1, 1, 0, 5000, 4, {2, 2}, 20000 - 8760, 8760},
      // 29 February: the following years begin on 1 March, until it comes again.
      {2008, 2, 29, 0, 24, 1462, {366, 365, 365, 365, 1}, 24, 8784},
  };
  for (const auto& row : rows) {
    const Blocks blocks{*hourFromDate(row.year, row.month, row.day, row.hour), row.hours,
                        row.count};
    std::vector<std::size_t> sizes;
    std::size_t next = 0;
    for (const RunYear& year : yearsOf(blocks)) {
      EXPECT_EQ(year.firstBlock, next);
      next = year.endBlock;
      sizes.push_back(year.blocks());
    }
    EXPECT_EQ(sizes, row.blocks);
    const LastYear last = lastYearOf(blocks, sizes.size());
    EXPECT_EQ(last.hours, row.lastHours);
    EXPECT_EQ(last.whole, row.lastWhole);
  }
}

// Two receptors over two years of days and three more days; ALL_SOURCES alone matters.
TEST(Judgement, LeavesOutTheHighestOfEachYearOnce) {
  Case theCase;
  theCase.scale = 1;
  theCase.standard = 50;
  theCase.sil = 1;
  theCase.excludeRank1 = true;
  const Blocks blocks{*hourFromDate(2009, 1, 1, 0), 24, 733};
  std::vector<GroupSums> groups(2);
  for (GroupSums& group : groups) group.sums.assign(733 * 2, 0.0);
  const auto set = [&](std::size_t day, std::size_t receptor, double value) {
    groups[0].sums[day * 2 + receptor] = 24 * value;
  };
  set(0, 0, 90), set(364, 0, 80), set(365, 0, 60), set(729, 0, 70), set(731, 0, 51);
  set(3, 1, 60), set(4, 1, 60), set(732, 1, 40);
  const Averages averages(theCase, blocks, groups, 2, std::vector<std::int64_t>(733, 24));
  std::vector<std::pair<std::size_t, double>> exceedances;
  const Judgement judgement = judge(theCase, blocks, averages, [&](const Place& place) {
    exceedances.emplace_back(place.block, place.value);
  });
  std::vector<std::size_t> leftOut;
  for (const Place& place : judgement.leftOut) leftOut.push_back(place.block);
  EXPECT_EQ(leftOut, (std::vector<std::size_t>{0, 3, 729, 365, 731, 732}));
  EXPECT_EQ(exceedances,
            (std::vector<std::pair<std::size_t, double>>{{4, 60}, {364, 80}, {365, 60}}));
  EXPECT_EQ(judgement.judged, 733 * 2 - 6u);
}

TEST(Results, JudgeTheOneAverageOfAYearThoughRank1IsExcluded) {
  // 8,784 hours from 2009-01-01 00: 2 averages of 4,392 hours, and the second year has none; of
  // 4,380 hours 2 in the first year, and 24 hours of the second are not used.
  const struct {
    const char *run, *averaging, *judged;
    std::vector<std::string> says;
  } rows[] = {
      {"8784",
       "4392",
       "2",
       {"Left out as rank 1:           2 (the highest average of every receptor,"}},
      {"8784", "8759", "2", {"every receptor has one average only: nothing was left out, and"}},
      {"8784",
       "24",
       "730",
       {"Left out as rank 1:           2 (the highest",
        "run, counted from its start, listed below)",
        "Rank 1 is excluded, but the run has 1 year with one average only"}},
      {"8784",
       "12",
       "1,460",
       {"Left out as rank 1:           4 (",
        "Year 2 of the run has 24 hours of 8,760, and rank 1 "
        "was left out for it too.",
        "\r\n     2  A "}},
  };
  for (const auto& row : rows) {
    Study study;
    study.line(4) = row.run;
    study.line(14) = row.averaging;
    study.line(15) = "1000";
    study.line(21) = "T";
    for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
      study.writeHours(name, std::vector<std::string>(8784, "1E-5 2E-5"));
    }
    const std::string list = completedList(study);
    expectSays(list, row.says);
    expectSays(list, {std::string("Averages judged:              ") + row.judged + "\r\n"});
  }
}

// 80 exceedances by hour at A, of which the 20 smallest are significant ones.
TEST(Results, ShowTheSignificantExceedancesThatTheFirstTableCannotShow) {
  Study study;
  study.line(4) = "80";
  study.line(14) = "1";
  std::vector<std::vector<double>> all, facility, other;
  for (int hour = 0; hour < 80; ++hour) {
    const double own = hour >= 60 ? 2 + 0.001 * hour : 0.5;
    all.push_back({200.0 - hour, 1});
    facility.push_back({own, 0});
    other.push_back({all.back()[0] - own - 0.25, 0});
  }
  writeMicro(study, "all.con", all);
  writeMicro(study, "group_2.con", facility);
  writeMicro(study, "group_3.con", other);
  const std::string list = completedList(study);
  expectSays(list,
             {"Exceedances:                  80 (", "Significant exceedances:      20 (",
              "Largest contribution:         2.0790 ug/m**3 of FACILITY at an exceedance\r\n",
              "SIGNIFICANT EXCEEDANCES, the largest contribution of FACILITY first\r\n",
              "\r\n   1  A                100.0     200.0  2009-01-04 07     1       121.0000"
              "         2.0790    1.7  yes       0.2500\r\n",
              "\r\n  20  A                100.0     200.0  2009-01-03 12     1       140.0000",
              "  and 30 exceedances more, all of them smaller or equal."});
  expectSilent(list, "significant exceedances more");
  // With the twenty among the fifty largest, one table is enough.
  study.line(4) = "70";
  expectSays(completedList(study), {"\r\nSIGNIFICANT EXCEEDANCES"});
  study.line(3) = "2009,01,02,06";
  study.line(4) = "50";
  expectSilent(completedList(study), "\r\nSIGNIFICANT EXCEEDANCES");
}

TEST(Results, NameTheGroupsThatMatterAndSumUpTheOthers) {
  Study study(50);
  const auto set = [&](std::size_t group, double value) {
    writeMicro(study, "group_" + std::to_string(group) + ".con",
               std::vector<std::vector<double>>(6, {value, 0}));
  };
  writeMicro(study, "all.con", std::vector<std::vector<double>>(6, {100, 0}));
  for (std::size_t group = 2; group <= 50; ++group) set(group, 0.065);
  set(40, 40), set(7, 1), set(30, 1.5), set(12, 0.9);
  expectSays(
      completedList(study),
      {"      | OTHER_38          40.0000  40.0 %  OTHER_28           1.5000   1.5 %  OTHER_5"
       "            1.0000   1.0 %\r\n"
       "      | and 45 groups, together 3.8 %\r\n"});  // 0.9 + 44 x 0.065 = 3.76
  // No more than twelve are named, of equal ones the first.
  for (std::size_t group = 3; group <= 50; ++group) set(group, group <= 16 ? 2 : 0);
  expectSays(completedList(study), {"OTHER_12           2.0000   2.0 %\r\n"
                                    "      | and 36 groups, together 4.0 %\r\n"});
  // A single one behind them is named too.
  expectSays(completedList(Study(15)), {"OTHER_13           2.0000  20.0 %\r\n"});
}

}  // namespace
}  // namespace korventally::engine
