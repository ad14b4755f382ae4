// Slips that the engine cannot be sure of, one study for each of them and for its neighbour.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

constexpr const char* kNothing = "None.";

void fill(const Study& study, std::size_t group, double value) {
  const std::string name = group == 1 ? "all.con" : "group_" + std::to_string(group) + ".con";
  writeMicro(study, name, std::vector<std::vector<double>>(6, {value, value / 2}));
}

TEST(Warnings, TellTheSlipFromWhatIsSound) {
  const struct {
    const char* what;
    std::function<void(Study&)> slip;
    std::string says;
  } rows[] = {
      {"nothing", [](Study&) {}, kNothing},
      {"one file by two names", [](Study& study) { study.line(10) = study.text("./group_2.con"); },
       "Groups 2 and 3 (FACILITY and OTHER_1) have one concentration file, "},
      {"a copy is another file",
       [](Study& study) {
         std::filesystem::copy_file(study.path("group_2.con"), study.path("b"));
         study.line(10) = study.text("b");
       },
       kNothing},
      {"one name", [](Study& study) { study.line(11) = " Facility"; },
       "Groups 2 and 3 (FACILITY) have one name."},
      {"zero", [](Study& study) { fill(study, 2, 0), fill(study, 3, 0); },
       "No concentration anywhere: FACILITY and OTHER_1 are zero at every receptor in every "
       "average."},
      {"zero beside background",
       [](Study& study) {
         study.line(13) = "3";
         for (const std::size_t i : {1u, 2u, 3u}) fill(study, i, 0);
       },
       "No concentration anywhere: ALL_SOURCES, FACILITY and OTHER_1 are zero"},
      {"one place", [](Study& study) { study.write("receptors.dat", "0 7.5 A\n-0.0 7.5 B\n"); },
       "1 receptor stands where an earlier one stands, for example B where A stands (X 0.0, Y "
       "7.5). "
       "Several groups written into one file look like that."},
      {"ug/m**3", [](Study& study) { fill(study, 1, 1.0001e6), fill(study, 3, 1e6); },
       "Averages above 1E6 ug/m**3: ALL_SOURCES, up to 1.0001E+06 ug/m**3. Concentration files "
       "must "
       "hold g/m**3; do the files hold ug/m**3?"},
      {"just believable", [](Study& study) { fill(study, 1, 1e6); }, kNothing},
      {"divided twice, seen through the background",
       [](Study& study) {
         study.line(13) = "3";
         fill(study, 1, 0.00079), fill(study, 2, 0.0001), fill(study, 3, 0.0001);
       },
       "The highest average of ALL_SOURCES, without background, is 0.00079 ug/m**3, below a "
       "ten-thousandth of 8.0 ug/m**3. Concentration files must hold g/m**3; were the values "
       "divided "
       "twice?"},
      {"just enough",
       [](Study& study) {
         fill(study, 1, 0.0008);
         fill(study, 2, 0.0001), fill(study, 3, 0.0001);
       },
       kNothing},
      {"parts beyond the whole, with the groups' names",
       [](Study& study) {
         study.line(11) = "RUN COMPLETED";
         fill(study, 2, 10), fill(study, 3, 10);
       },
       "In 2 averages the groups FACILITY and RUN COMPLETED together give more than ALL_SOURCES"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Study study;
    row.slip(study);
    const std::string said = warningsIn(completedList(study));
    if (row.says == kNothing) {
      EXPECT_EQ(said, kNothing);
    } else {
      EXPECT_NE(said.find(row.says), said.npos) << said;
      // No slip is taken for a wrong unit too.
      EXPECT_EQ(said.find("g/m**3;") != said.npos, row.says.find("g/m**3;") != said.npos) << said;
    }
  }
}

}  // namespace
}  // namespace korventally::engine
