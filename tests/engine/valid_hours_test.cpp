// Calm and missing hours: a model's own averages, and small studies worked out by hand.
#include "engine/valid_hours.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "engine/group_reader.h"
#include "engine/judgement.h"
#include "engine/zero_row.h"
#include "tests/engine/model_files.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

struct ModelCase {
  const char* hourly;
  const char* marks;
  const char* averages;
  std::int64_t firstDay, firstHour;  // of July 2010, hours 1 to 24
  std::int64_t run, averaging;
  std::size_t blocks;
};

const ModelCase kModelCases[] = {
    {"plot/all.pst", "plot/ERRORS.OUT", "averages/all_3.pst", 16, 1, 48, 3, 16},
    {"plot/all.pst", "plot/ERRORS.OUT", "averages/all_24.pst", 16, 1, 48, 24, 2},
    {"plot/all.pst", "plot/ERRORS.OUT", "averages/all_period.pst", 16, 1, 48, 8760, 1},
    {"plot/facility.pst", "plot/ERRORS.OUT", "averages/facility_3.pst", 16, 1, 48, 3, 16},
    {"plot/facility.pst", "plot/ERRORS.OUT", "averages/facility_24.pst", 16, 1, 48, 24, 2},
    {"plot/facility.pst", "plot/ERRORS.OUT", "averages/facility_period.pst", 16, 1, 48, 8760, 1},
    // Sources at rest in the night: of 25 hours of zeros only 4 do not count.
    {"night/all.pst", "night/ERRORS.OUT", "night/all_24.pst", 16, 1, 48, 24, 2},
    {"night/all.pst", "night/ERRORS.OUT", "night/all_period.pst", 16, 1, 48, 8784, 1},
    // The model's days stay on the clock: the first of a run from hour 10 has 15 hours.
    {"offclock/all.pst", "plot/ERRORS.OUT", "offclock/all_24.pst", 16, 10, 15, 15, 1},
    {"offclock/all.pst", "plot/ERRORS.OUT", "offclock/all_24.pst", 17, 1, 24, 24, 1},
};

// How many of the model's averages stand in the blocks and agree with them; fails for others.
std::size_t agreeing(const ModelCase& model, const Blocks& blocks, const Averages& averages) {
  const std::vector<ModelRow> rows = readModelRows(model.averages);
  std::map<Hour, std::size_t> seen;
  for (const ModelRow& row : rows) {
    const std::size_t receptor = seen[row.hour]++;
    const Hour last = blocks.annual ? blocks.end() - 1 : row.hour;
    if (last < blocks.start || last >= blocks.end()) continue;
    const auto block = static_cast<std::size_t>((last - blocks.start) / blocks.hours);
    EXPECT_NEAR(averages.own(0, block, receptor), std::stod(row.value), 1e-5) << row.hour;
  }
  return blocks.annual ? rows.size() : seen.size() * averages.receptors();
}

TEST(ValidHours, GiveTheAveragesThatTheModelGives) {
  for (const ModelCase& model : kModelCases) {
    SCOPED_TRACE(model.averages);
    const Study study;
    const std::vector<ModelRow> rows = readModelRows(model.hourly);
    study.write("model.con", concentrationText(rows, readMarks(model.marks)));
    study.write("nine.dat", receptorText(rows));
    InputFile receptorFile(study.path("nine.dat"));
    const Receptors receptors = readReceptors(receptorFile, 1);
    Case theCase;
    theCase.groups.resize(1);
    theCase.scale = 1e6;
    theCase.start = *hourFromDate(2010, 7, model.firstDay, model.firstHour);
    theCase.runHours = model.run;
    theCase.averagingHours = model.averaging;
    const Blocks blocks = planBlocks(theCase);
    std::vector<std::unique_ptr<InputFile>> files;
    files.push_back(std::make_unique<InputFile>(study.path("model.con")));
    const auto groups = readGroups(files, blocks, receptors, [](std::size_t, const GroupSums&) {});
    const RunHours hours = agreeOnHours(theCase, blocks, groups);
    const Averages averages(theCase, blocks, groups, 9, validHoursOfBlocks(blocks, hours));
    ASSERT_EQ(averages.blocks(), model.blocks);
    EXPECT_GE(agreeing(model, blocks, averages), 9 * model.blocks);
  }
}

TEST(ValidHours, AreDividedByThreeQuartersOfTheHoursAtLeast) {
  const struct {
    std::int64_t hours, valid, divisor;
  } rows[] = {{1, 0, 1},    {1, 1, 1},    {2, 1, 2},  {3, 0, 3},   {3, 2, 3},
              {4, 1, 3},    {8, 5, 6},    {8, 7, 7},  {24, 0, 18}, {24, 17, 18},
              {24, 19, 19}, {24, 24, 24}, {12, 0, 9}, {15, 3, 12}, {720, 0, 540}};
  for (const auto& row : rows) {
    EXPECT_EQ(divisorOf({0, row.hours, 1, 0, false, {}}, row.valid), row.divisor) << row.hours;
  }
  EXPECT_EQ(divisorOf({0, 8760, 1, 0, true, {}}, 3), 3);
}

// Six hours as two averages, or as an annual one; every file with these lines.
struct Marked {
  const char* averaging;
  std::vector<std::string> hours;
  std::vector<std::string> says;
};

const Marked kMarked[] = {
    // A 4-hour average is divided by 3 at least: (3 + 3) / 3; the rest of the run is not used.
    {"4",
     {"calm", "missing", "3E-06 9E-06", "3E-06 9E-06", "calm", "1 1"},
     {"ALL_SOURCES    1st             6.0000  B ", "FACILITY       1st             6.0000  B ",
      "Of the 4 hours used, 1 hour calm, 1 hour missing: left out.",
      "Sums are divided by the number of valid hours, but by 3 at least.",
      "  hours counted 0 to 23; 2 hours calm, 1 hour missing\r\n", "WARNINGS\r\n  None.\r\n"}},
    // An annual one by its valid hours: 12 / 2 and 18 / 2.
    {"8760",
     {"calm", "6E-06 9E-06", "calm", "missing", "6E-06 9E-06", "calm"},
     {"ALL_SOURCES    1st             9.0000  B ", "The sum is divided by the 2 valid hours."}},
    {"3",
     {"calm", "calm", "calm", "3E-06 6E-06", "3E-06 6E-06", "missing"},
     {"ALL_SOURCES    1st             4.0000  B ", "1 average has no valid hour and is zero."}},
    // Zero is not calm. With three of six hours calm the divisor is 5: 45 / 5 instead of 45 / 6.
    {"6",
     {"0 0", "0.0 -0.0E+05", "15E-06 0", "15E-06 0", "15E-06 0", "0,0E5"},
     {"ALL_SOURCES    1st             7.5000  A ", "Exceedances:                  0 (",
      "3 hours are zero at every receptor of every group and not marked calm or missing; they are "
      "counted as valid. If they were calm, the highest average of ALL_SOURCES would be 9.0000 "
      "instead of 7.5000 "
      "ug/m**3, with 1 exceedance instead of 0.",
      "counted 0 to 23; no hour marked\r\n"}},
    {"3",
     {"0 0", "3E-06 0", "3E-06 0", "0 1e-300", "3E-06 0", "3E-06 0"},
     {"1 hour is zero at every", "If it was calm, neither the highest average nor the number"}},
};

TEST(ValidHours, AreCountedByHand) {
  for (const Marked& marked : kMarked) {
    SCOPED_TRACE(marked.averaging + marked.hours.front());
    Study study(2);
    for (const char* name : {"all.con", "group_2.con"}) study.writeHours(name, marked.hours);
    study.line(12) = marked.averaging;
    EXPECT_EQ(study.run().sentence, "");
    const std::string list = study.read("out.lst");
    expectSays(list + warningsIn(list), marked.says);
  }
}

TEST(ValidHours, AreZeroOnlyWhereEveryValueOfEveryFileIsZero) {
  for (const char* zero : {" 0", " 0 0.000,-0.0E+05\t0e9 ", " 0.00E+00 0.00E+00 0.00E+01 0 0E15"}) {
    EXPECT_TRUE(isZeroRow(zero)) << zero;
  }
  for (const char* other : {" 7", " 0 0 7 0 0", " 0 0.0 0.09 0", " 0 0.0 0.9", " 0 05 0", " 8 0",
                            " 0 1e-300 0", " 0 0.2-103 0", " 0 0 0 0.5 0"}) {
    EXPECT_FALSE(isZeroRow(other)) << other;
  }
  Study study(2);
  study.writeHours("all.con", {"0 0", "0 0", "0 0", "0 0", "0 0", "0 0"});
  study.writeHours("group_2.con", {"0 0", "1E-6 0", "0 0", "0 0", "1E-6 0", "0 0"});
  EXPECT_EQ(study.run().sentence, "");
  EXPECT_NE(study.read("out.lst").find("  4 hours are zero at every"), std::string::npos);
}

struct Refused {
  const char* averaging;
  std::vector<std::string> first, other;  // hours of group 1 and of group 3
  const char* file;                       // that the sentence begins with, if any
  const char* says;
};

const Refused kRefused[] = {
    {"3",
     {"1 1", "calm", "1 1"},
     {"1 1", "0 0", "1 1"},
     "",
     "The hour 2009-01-01 01 is marked calm in the file ALL, but is not marked in the file OTHER. "
     "Calm and missing hours are those of the weather: all files must mark the same."},
    {"3",
     {"1 1", "1 1", "calm"},
     {"1 1", "1 1", "missing"},
     "",
     "The hour 2009-01-01 02 is marked calm in the file ALL, but is marked missing in the file "
     "OTHER. Calm and missing hours are those of the weather: all files must mark the same."},
    {"8760",
     {"calm", "missing", "calm"},
     {"calm", "missing", "calm"},
     "",
     "All 3 hours of the run are marked calm or missing: there is no annual average."},
    {"3",
     {"1 1", "calm 1", "1 1"},
     {},
     "all.con",
     ", line 3 has \"1\" behind \"calm\"; the word stands in place of all values."},
    {"3", {"Calm"}, {}, "all.con", ", line 2, value 1 is \"Calm\", which is not a number."},
};

TEST(ValidHours, MustBeTheSameInEveryFile) {
  for (const Refused& refused : kRefused) {
    SCOPED_TRACE(refused.says);
    Study study;
    study.line(4) = "3";
    study.line(14) = refused.averaging;
    for (const char* name : {"all.con", "group_2.con"}) study.writeHours(name, refused.first);
    study.writeHours("group_3.con", refused.other);
    std::string says = refused.says;
    if (*refused.file != '\0') says = "The file " + study.text(refused.file) + says;
    for (const auto& [word, name] :
         {std::pair("file ALL,", "all.con"), {"file OTHER.", "group_3.con"}}) {
      const std::size_t at = says.find(word);
      if (at != says.npos) says.replace(at + 5, std::string(word).size() - 6, study.text(name));
    }
    EXPECT_EQ(study.run().sentence, says);
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
  }
}

}  // namespace
}  // namespace korventally::engine
