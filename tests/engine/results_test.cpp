// Whole runs, small enough to compute by hand: what the list file must say.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

// Receptor A averages 10, 12; B averages 20, 9. FACILITY at A 3, 0.9; at B 1, 5. OTHER_1 the rest.
Study& fill(Study& study) {
  writeMicro(study, "all.con", {{9, 20}, {10, 21}, {11, 19}, {12, 9}, {12, 10}, {12, 8}});
  writeMicro(study, "group_2.con", {{3, 1}, {3, 2}, {3, 0}, {0.9, 5}, {0.9, 5}, {0.9, 5}});
  writeMicro(study, "group_3.con", {{7, 19}, {7, 19}, {7, 19}, {11.1, 4}, {11.1, 4}, {11.1, 4}});
  return study;
}

// Lines of the control file changed from the study's own, and what the list file then says.
struct Told {
  std::map<std::size_t, const char*> lines;
  std::vector<std::string> says;
};

TEST(Results, OfTwoReceptorsAndTwoBlocksByHand) {
  const Told rows[] = {
      // Everything, with no background.
      {{{15, "9.5"}},
       {"  2 averages of 3 hours, 2009-01-01 00 to 2009-01-01 05\r\n",
        "ALL_SOURCES    1st            20.0000  B                300.5    -400.0  2009-01-01 00",
        "               2nd            10.0000  A                100.0     200.0  2009-01-01 00",
        "FACILITY       1st             5.0000  B                300.5    -400.0  2009-01-01 03",
        "               2nd             1.0000  B                300.5    -400.0  2009-01-01 00",
        "Averages judged:              4\r\n",
        "Exceedances:                  3 (ALL_SOURCES above 9.5 ug/m**3)",
        "Receptors that exceed:        2 of 2\r\n",
        "Significant exceedances:      2 (FACILITY contributes 1.0 ug/m**3 or more)",
        "Largest contribution:         3.0000 ug/m**3 of FACILITY at an exceedance\r\n"
        "    Where and when:             receptor A (X 100.0, Y 200.0), first hour 2009-01-01 "
        "00\r\n"
        "    Total there:                10.0000 ug/m**3\r\n",
        "   1  B                300.5    -400.0  2009-01-01 00     3        20.0000         1.0000"
        "    5.0  yes       0.0000\r\n"
        "      | OTHER_1           19.0000  95.0 %\r\n"
        "   2  A                100.0     200.0  2009-01-01 03     3        12.0000         0.9000"
        "    7.5   no       0.0000\r\n"
        "      | OTHER_1           11.1000  92.5 %\r\n"
        "   3  A                100.0     200.0  2009-01-01 00     3        10.0000         3.0000"
        "   30.0  yes       0.0000\r\n"
        "      | OTHER_1            7.0000  70.0 %\r\n\r\n",
        "Highest  First hour      Contribution  First hour\r\n"
        "  A                100.0     200.0       2       1        12.0000  2009-01-01 03"
        "         3.0000  2009-01-01 00\r\n"
        "  B                300.5    -400.0       1       1        20.0000  2009-01-01 00"
        "         1.0000  2009-01-01 00\r\n",
        "WARNINGS\r\n  None.\r\n"}},
      // Every receptor's highest average is left out.
      {{{15, "9.5"}, {21, "T"}},
       {"Averages judged:              2\r\n", "Exceedances:                  1 (",
        "\r\n     1  A                100.0     200.0  2009-01-01 03         12.0000\r\n"
        "     1  B                300.5    -400.0  2009-01-01 00         20.0000\r\n",
        "   1  A                100.0     200.0  2009-01-01 00     3        10.0000"}},
      // The background belongs to the first group only.
      {{{13, "2.5"}, {15, "22"}},
       {"ALL_SOURCES    1st            22.5000", "FACILITY       1st             5.0000",
        "        22.5000         1.0000    4.4  yes       0.0000\r\n"
        "      | OTHER_1           19.0000  84.4 %",
        "Largest contribution:         1.0000 ug/m**3 of FACILITY at an exceedance\r\n",
        "The background of 2.5 ug/m**3 is part of every value of ALL_SOURCES below.",
        "WARNINGS\r\n  None.\r\n"}},
      // The hours of the run out of longer files.
      {{{3, "2009,01,01,03"}, {4, "3"}},
       {"1 average of 3 hours, 2009-01-01 03 to 2009-01-01 05",
        "ALL_SOURCES    1st            12.0000  A",
        "6 hours (2009-01-01 00 to 2009-01-01 05), 2 receptors"}},
      {{{14, "4"}}, {"The last 2 hours of the run fill no averaging period and are not used."}},
      {{{14, "5"}}, {"The last 1 hour of the run fills no averaging period and is not"}},
      // FACILITY averages 1.95 at A and 3 at B, where alone the total exceeds.
      {{{14, "8760"}, {15, "14"}, {19, "3.1"}, {21, "T"}},
       {"Averages judged:              2\r\n", "Exceedances:                  1 (",
        "3.0000 ug/m**3 of FACILITY at an exceedance, below 3.1: none is significant\r\n",
        "Rank 1 is excluded, but every receptor has one average only: nothing was left out"}},
      {{{15, "8"}},
       {"Largest contribution:         5.0000 ug/m**3 of FACILITY at an exceedance\r\n"
        "    Where and when:             receptor B (X 300.5, Y -400.0), first hour 2009-01-01 "
        "03"}},
      {{{15, "20"}},
       {"Largest contribution:         none: nothing exceeds\r\n",
        "EXCEEDANCES, the largest first\r\n  None.\r\n"}},
  };
  for (const Told& row : rows) {
    Study study;
    for (const auto& [line, value] : row.lines) study.line(line) = value;
    expectSays(completedList(fill(study)), row.says);
  }
}

TEST(Results, TakeValuesAtTheLimitsForWhatTheyAre) {
  // In doubles three hours of 9.7 average to a little more than 9.7, and of 8.4 to a little less.
  Study study;
  writeMicro(study, "all.con", std::vector<std::vector<double>>(6, {9.7, 9.8}));
  writeMicro(study, "group_2.con", std::vector<std::vector<double>>(6, {0.3, 8.4}));
  writeMicro(study, "group_3.con", std::vector<std::vector<double>>(6, {1, 1}));
  study.line(15) = "9.7";
  study.line(19) = "8.4";
  expectSays(completedList(study),
             {"Exceedances:                  2 (", "Receptors that exceed:        1 of 2",
              "Significant exceedances:      2 ("});
}

TEST(Results, OfEqualValuesTheEarliestAndFirstCounts) {
  expectSays(
      completedList(Study()),
      {"ALL_SOURCES    1st            10.0000  A                100.0     200.0  2009-01-01 00",
       "               2nd            10.0000  A                100.0     200.0  2009-01-01 03",
       "   1  A                100.0     200.0  2009-01-01 00",
       "   2  B                300.5    -400.0  2009-01-01 00"});
}

TEST(Results, OfTotalsThatOnlyRoundingTellsApartTheEarliestIsTheHighest) {
  Study study;
  study.line(15) = "1";
  study.line(21) = "T";
  // Both blocks sum up to 10, added in another order; FACILITY is there in the first one only.
  writeMicro(study, "all.con", {{1, 1}, {2, 2}, {7, 7}, {2, 2}, {7, 7}, {1, 1}});
  writeMicro(study, "group_2.con", {{5, 5}, {5, 5}, {5, 5}, {0, 0}, {0, 0}, {0, 0}});
  expectSays(completedList(study), {"Significant exceedances:      0 ("});
}

TEST(Results, ShowWhereAReceptorLies) {
  Study study;
  study.write("receptors.dat", "-1234567.8 345.123 A\n4123456.7 -0 B\n");
  expectSays(completedList(study),
             {"A            -1234567.8   345.123", "B             4123456.7     0.000"});
}

TEST(Results, NeverShowAGroupsNameAsTheVerdict) {
  Study study(6);
  study.line(17) = "RUN COMPLETED";
  completedList(study);
  const std::vector<std::string> lines = study.list();
  const auto isVerdict = [](const std::string& line) {
    const std::size_t start = line.find_first_not_of(' ');
    return start != std::string::npos && line.find("RUN COMPLETED", start) == start &&
           line.find_last_not_of(' ') == start + 12;
  };
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), isVerdict), 1);
}

TEST(Results, OfAnAnnualRunAreOneAverageOverAllOfIt) {
  for (const char* hours : {"8760", "8784"}) {
    Study study;
    study.line(14) = hours;
    study.line(15) = "14";
    const std::string list = completedList(fill(study));
    expectSays(list,
               {"1 average of 6 hours, 2009-01-01 00 to 2009-01-01 05 (annual)",
                "ALL_SOURCES    1st            14.5000  B", "Exceedances:                  1 (",
                "The annual average covers 6 hours, which is less than a year."});
    expectSilent(list, "2nd     ");
  }
}

TEST(Results, WarnWhenThePartsAreMoreThanTheWhole) {
  Study study;
  fill(study);
  writeMicro(study, "group_3.con", std::vector<std::vector<double>>(6, {8.5, 19.01}));
  // Block 1: A 3 + 8.5 against 10, B 1 + 19.01 against 20 (within rounding); block 2: A below, B
  // above.
  expectSays(completedList(study),
             {"In 2 averages the groups FACILITY and OTHER_1 together give more than ALL_SOURCES",
              "The worst case: 24.0100 against 9.0000", " 2009-01-01 03. The files may belong"});
}

TEST(Results, TakeATenthOfAPerCentForRounding) {
  Study study;
  writeMicro(study, "all.con", std::vector<std::vector<double>>(6, {10, 10}));
  writeMicro(study, "group_2.con", std::vector<std::vector<double>>(6, {4, 4}));
  writeMicro(study, "group_3.con", std::vector<std::vector<double>>(6, {6.0105, 6.0115}));
  expectSays(completedList(study),
             {"In 2 averages the groups FACILITY and OTHER_1", "10.0115 against 10.0000"});
}

TEST(Results, RefuseRunsThatHoldNoAverage) {
  const struct {
    const char *start, *run, *averaging, *says;
  } rows[] = {
      {"2009,01,01,00", "23", "24",
       "The run length of 23 hours is shorter than one averaging period of 24 hours."},
      {"2009,01,01,00", "8784", "8784",
       "The run length of 8,784 hours is longer than the year that begins at 2009-01-01 00 (8,760 "
       "hours); an annual average covers one year at most."},
      {"2009,01,01,00", "8784", "8770",
       "The averaging period of 8,770 hours is neither an annual one (8760 or 8784) nor shorter "
       "than a year."},
  };
  for (const auto& row : rows) {
    Study study;
    study.line(3) = row.start;
    study.line(4) = row.run;
    study.line(14) = row.averaging;
    EXPECT_EQ(study.run().sentence, row.says);
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
  }
}

TEST(Results, FitTheWidthForAnyNumberOfGroupsAndNumbers) {
  for (const std::size_t groups : {2u, 6u, 50u}) {
    Study study(groups);
    study.write("receptors.dat", "-999999999.000001 -999999999.000001 TWELVE_CHARS\n1 2 B\n");
    const std::vector<std::vector<double>> hours(6, {1e13, 123456.789});
    writeMicro(study, "all.con", hours);
    for (std::size_t i = 3; i < groups; ++i) study.line(7 + 2 * i) = "THIRTEEN_WIDE";
    for (std::size_t i = 2; i <= groups; ++i) {
      writeMicro(study, "group_" + std::to_string(i) + ".con", hours);
    }
    study.line(9 + 2 * groups) = "123456.7889999";
    study.line(15 + 2 * groups) = groups == 6 ? "T" : "F";
    completedList(study);
    std::size_t widest = 0;
    for (const std::string& line : study.list()) {
      const bool path = line.find(study.text("")) != line.npos;
      if (!path) widest = std::max(widest, line.size());
    }
    EXPECT_LE(widest, 132u);
    EXPECT_GE(widest, 130u);
  }
}

TEST(Results, ShowFiftyExceedancesAndCountTheRest) {
  for (const std::size_t hours : {25u, 26u, 40u}) {
    Study study;
    study.line(4) = std::to_string(hours);
    study.line(14) = "1";
    std::vector<std::vector<double>> rows;
    for (std::size_t i = 0; i < hours; ++i) rows.push_back({100.0 + double(i), 200.0 + double(i)});
    writeMicro(study, "all.con", rows);
    for (const char* name : {"group_2.con", "group_3.con"}) writeMicro(study, name, rows);
    const std::string list = completedList(study);
    expectSays(
        list, {"Exceedances:                  " + std::to_string(2 * hours) + " (", "\r\n  50  A"});
    expectSilent(list, "\r\n  51  ");
    if (hours == 25) {
      expectSilent(list, " more, all of them");
    } else {
      const std::string more = std::to_string(2 * hours - 50);
      expectSays(list, {"  and " + more + " exceedances more, all of them"});
    }
  }
}

}  // namespace
}  // namespace korventally::engine
