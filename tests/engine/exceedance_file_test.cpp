// The table of every exceedance beside the list file.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

constexpr const char* kTable = "out.lst.csv";
constexpr const char* kMark = "Receptor ID,X,Y,First hour,Valid hours,Total (ug/m**3)";

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

}  // namespace
}  // namespace korventally::engine
