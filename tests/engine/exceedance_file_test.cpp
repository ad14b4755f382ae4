// The table of every exceedance beside the list file, and what it does to files that stand there.
#include "engine/exceedance_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

constexpr const char* kTable = "out.lst.csv";
constexpr const char* kMark = "Receptor ID,X,Y,First hour,Valid hours,Total (ug/m**3)";
constexpr const char* kUnfinished = "Unfinished ,X,Y,First hour,Valid hours,Total (ug/m**3)";

TEST(ExceedanceFile, HoldsEveryExceedanceInTheOrderOfTheHours) {
  Study study;
  study.line(7) = "ALL, \"all\"";
  study.line(13) = "0.5";
  study.write("receptors.dat", "-0 200.25 A\"1\n300.5 -400 B\n");
  writeMicro(study, "all.con", {{9, 20}, {10, 21}, {11, 19}, {12, 7}, {12, 7}, {12, 7}});
  writeMicro(study, "group_2.con", {{3, 1}, {3, 2}, {3, 0}, {0.1, 5}, {0.1, 5}, {0.1, 5}});
  writeMicro(study, "group_3.con", {{1, 1}, {1, 1}, {1, 1}, {1, 1}, {0, 1}, {0, 1}});
  expectSays(completedList(study),
             {"Every exceedance:             " + study.text(kTable) + ", 3 rows\r\n"});
  EXPECT_EQ(study.read(kTable),
            std::string(kMark) +
                ",\"ALL, \"\"all\"\"\",FACILITY,OTHER_1\r\n"
                "\"A\"\"1\",0.0,200.25,2009-01-01 00,3,10.5,10,3,1\r\n"
                "B,300.5,-400.00,2009-01-01 00,3,20.5,20,1,1\r\n"
                "\"A\"\"1\",0.0,200.25,2009-01-01 03,3,12.5,12,0.1,0.333333333333\r\n");
}

// More rows than are held back at once.
TEST(ExceedanceFile, LosesNoRow) {
  Study study;
  study.line(4) = "3000";
  study.line(14) = "1";
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    study.writeHours(name, std::vector<std::string>(3000, "1E-5 9E-6"));
  }
  completedList(study);
  const std::string table = study.read(kTable);
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 6001);
  EXPECT_TRUE(table.ends_with("B,300.5,-400.0,2009-05-05 23,1,9,9,9,9\r\n"));
}

TEST(ExceedanceFile, ReplacesWhatAnEarlierRunLeft) {
  const std::string whole(kMark), cut(kUnfinished);
  for (const std::string& old :
       {whole + ",ALL\r\nold", cut + ",ALL\r\nR0", cut.substr(0, 7), std::string()}) {
    const Study study;
    study.write(kTable, old);
    expectSays(completedList(study), {"WARNINGS\r\n  None.\r\n", "Every exceedance: "});
    EXPECT_TRUE(study.read(kTable).starts_with(whole + ",ALL_SOURCES,"));
  }
}

TEST(ExceedanceFile, LeavesAForeignFileAloneAndWarns) {
  for (const char* foreign : {"my notes\r\n", "Receptor ID,X,Y\r\n", "Unfinished work", "R"}) {
    const Study study;
    study.write(kTable, foreign);
    const std::string list = completedList(study);
    expectSays(list, {"No table of every exceedance was written: The file", "is not from an"});
    expectSilent(list, "Every exceedance: ");
    EXPECT_EQ(study.read(kTable), foreign);
  }
  const Study study;
  std::filesystem::create_directory(study.path(kTable));
  expectSays(completedList(study), {"No table of every exceedance was written: The file"});
  EXPECT_TRUE(std::filesystem::is_directory(study.path(kTable)));
}

// Even a table of an earlier run, when the case names it.
TEST(ExceedanceFile, LeavesTheFilesOfTheCaseAlone) {
  const std::string old = std::string(kMark) + "\r\n";
  for (const std::size_t line : {6u, 10u, 17u}) {
    Study study;
    study.line(line) = study.text(kTable);
    study.write(kTable, old);
    EXPECT_EQ(study.run().outcome, Outcome::kFailed);
    EXPECT_EQ(study.read(kTable), old);
  }
  Study study;
  study.line(10) = study.text(kTable);
  std::filesystem::copy_file(study.path("group_3.con"), study.path(kTable));
  expectSays(completedList(study), {"is also named in line 10 of the"});
  EXPECT_EQ(study.read(kTable), study.read("group_3.con"));
  // The control file itself.
  study.line(1) = study.text("out2.lst");
  study.line(10) = study.text("group_3.con");
  study.writeControl();
  std::filesystem::rename(study.path("korventally.inp"), study.path("out2.lst.csv"));
  EXPECT_EQ(runCase(study.path("out2.lst.csv")).outcome, Outcome::kCompleted);
  expectSays(study.read("out2.lst"), {"is also the control file; it was left as it"});
  EXPECT_NE(study.read("out2.lst.csv"), "");
}

TEST(ExceedanceFile, IsGoneAfterARunThatFails) {
  for (const std::size_t line : {3u, 6u, 17u, 20u}) {
    Study study;
    completedList(study);
    ASSERT_TRUE(std::filesystem::exists(study.path(kTable)));
    study.line(line) = "nothing of use";
    EXPECT_EQ(study.run().outcome, Outcome::kFailed);
    EXPECT_FALSE(std::filesystem::exists(study.path(kTable)));
  }
}

TEST(ExceedanceFile, SaysInItsFirstLineUntilTheEndThatItIsUnfinished) {
  const Study study;
  const std::string name = study.text(kTable);
  Case theCase;
  theCase.groups = {{"ALL", {}, 0}};
  for (const bool verdict : {false, true}) {
    {
      ExceedanceFile table(name, "");
      table.begin(theCase);
      EXPECT_EQ(study.read(kTable), std::string(kUnfinished) + ",ALL\r\n");
      table.finish();
      EXPECT_EQ(study.read(kTable), std::string(kMark) + ",ALL\r\n");
      EXPECT_EQ(table.problem(), "");
      if (verdict) table.keep();
    }
    // Without a verdict even a whole table goes.
    EXPECT_EQ(std::filesystem::exists(study.path(kTable)), verdict);
  }
}

}  // namespace
}  // namespace korventally::engine
