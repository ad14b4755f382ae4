// Which column of a concentration file is which receptor.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

// Six hours of P 1, Q 2, R 30, S 4 ug/m**3, in this order or in another one.
std::string file(const std::string& top, const std::string& values) {
  std::string text = top + "\n";
  for (int hour = 0; hour < 6; ++hour) {
    text += "2009 1 1 " + std::to_string(hour) + " " + values + "\n";
  }
  return text;
}

const std::string kInOrder = "1E-6 2E-6 30E-6 4E-6", kTurned = "4E-6 30E-6 2E-6 1E-6";
const std::string kFour = "# receptors: P Q R S",
                  kTurnedFour = "# Receptors:\tS,R\n#receptors: Q P";

// Two groups of the same values, each written in its own way; the run begins in the second hour, so
// that hours outside it stand in front and behind.
struct Bound {
  const char* format;
  const char* receptors;
  std::string all, facility;
  std::vector<std::string> says;
};

const Bound kBound[] = {
    {"1",
     "0 0 P\n1 0 Q\n2 0 R\n3 0 S\n",
     file("# P Q", kInOrder),
     file(kTurnedFour, kTurned),
     {"ALL_SOURCES    1st            30.0000  R   ", "FACILITY       1st            30.0000  R   ",
      "   1  R                  2.0       0.0  2009-01-01 01     2        30.0000        30.0000  "
      "100.0  yes",
      "4 receptors\r\n", "4 receptors by name\r\n", "WARNINGS\r\n  None.\r\n"}},
    // Some of them, in an order of their own: 30 belongs to R wherever it stands.
    {"1",
     "3 0 S\n2 0 R\n",
     file(kFour, kInOrder),
     file(kTurnedFour, kTurned),
     {"ALL_SOURCES    1st            30.0000  R   ", "FACILITY       1st            30.0000  R   ",
      "Averages judged:              4\r\n", "WARNINGS\r\n  None.\r\n"}},
    {"1",
     "0 0 P\n1 0 Q\n",
     file(kFour, kInOrder),
     file(kTurnedFour, kTurned),
     {"ALL_SOURCES    1st             2.0000  Q   ",
      "FACILITY       1st             2.0000  Q   "}},
    // A ranked list that is right: with the background of 5, which only group 1 has.
    {"2",
     "1 35 2 0 R\n2 35.03 2 0 R\n3 9 3 0 S\n",
     file(kFour, kInOrder),
     file(kTurnedFour, kTurned),
     {"ALL_SOURCES    1st            35.0000  R   ", "WARNINGS\r\n  None.\r\n"}},
    {"2",
     "1 30 2 0 R\n3 4.004 3 0 S\n",
     file(kFour, kInOrder),
     file(kTurnedFour, kTurned),
     {"WARNINGS\r\n  None.\r\n"}},
    {"2",
     "# wrong\n1 35 2 0 R\n2 34.9 2 0 R\n3 9 3 0 S\n4 9 3 0 S\n5 9 3 0 S\n",
     file(kFour, kInOrder),
     file(kFour, kInOrder),
     {"has other values than the averages of ALL_SOURCES computed here, at 2 of 2 receptors.",
      " Line 3, for example: 34.9000 at R, whose highest average no. 2 is 35.0000. "}},
    {"2",
     "3 9 3 0 S\n4 9 3 0 S\n5 9 3 0 S\n",
     file(kFour, kInOrder),
     file(kFour, kInOrder),
     {"at 1 of 1 receptor.",
      " Line 3, for example: 9.0000 at S, whose highest average no. 3 is "
      "none at all. "}},
};

TEST(Columns, AreBoundByNameOrByTheOrderOfTheReceptorFile) {
  for (const Bound& bound : kBound) {
    SCOPED_TRACE(bound.receptors);
    Study study(2);
    study.write("all.con", bound.all);
    study.write("group_2.con", bound.facility);
    study.write("receptors.dat", bound.receptors);
    study.line(3) = "2009,01,01,01";
    study.line(4) = "4";
    study.line(11) = "5";
    study.line(12) = "2";
    study.line(14) = bound.format;
    if (bound.format[0] == '1') study.line(11) = "0";
    EXPECT_EQ(study.run().sentence, "");
    const std::string list = study.read("out.lst");
    expectSays(list + warningsIn(list), bound.says);
  }
}

struct Unbound {
  const char* format;
  const char* receptors;
  std::string all;
  const char* file;
  const char* says;  // behind the name of `file`; OTHER stands for the other one's
};

const Unbound kUnbound[] = {
    {"1", "0 0 P\n1 0 X\n", file(kFour, kInOrder), "receptors.dat",
     ", line 2 lists the receptor \"X\", which is not among the 4 receptors that the file OTHER "
     "names."},
    {"1", "0 0 P\n", file("# receptors: P Q\n# receptors: P", "1 1"), "all.con",
     ", line 2 names the receptor \"P\" twice."},
    {"1", "0 0 P\n", file("# receptors:", "1"), "all.con",
     ", line 1 names no receptor behind \"receptors:\"."},
    {"1", "0 0 P\n", file("# receptors: THIRTEEN_LONG", "1"), "all.con",
     ", line 1 names the receptor \"THIRTEEN_LONG\"; it must have 1 to 12 characters and no "
     "control "
     "character."},
    {"1", "0 0 P\n", file(kFour, "1 2 3"), "all.con",
     ", line 2 holds 3 values instead of 4, one for each receptor."},
    {"1", "0 0 P\n1 0 Q\n2 0 R\n", file("# hourly", kInOrder), "receptors.dat",
     " lists 3 receptors, but the file OTHER, line 2, holds 4 values: they do not belong together. "
     "A line \"# receptors: R01 R02 ...\" at the top of a concentration file names those of its "
     "values, and lets a receptor file choose among them."},
    {"1", "0 0 P\n1 0 Q\n2 0 R\n", file("#", "1 one 3 4"), "all.con",
     ", line 2, value 2 is \"one\", which is not a number."},
    {"1", "0 0 P\n1 0 Q\n", "2009 1 1 0 1 1\n2009 1 1 1 1\n", "all.con",
     ", line 2 holds 1 value instead of 2, one for each receptor."},
    {"2", "1 30 2 0 R\n2 4 3 0 S\n", file("# hourly", "1 2"), "receptors.dat",
     " is a ranked list (format 2), in no order that tells whose the values of the file OTHER are. "
     "Name their receptors at the top of that file, in a line \"# receptors: R01 R02 ...\", or "
     "give "
     "the receptors in format 1, in the order of the values."},
};

TEST(Columns, WithoutReceptorsAreAFaultOfTheFileThatDoesNotFit) {
  for (const Unbound& unbound : kUnbound) {
    SCOPED_TRACE(unbound.says);
    Study study(2);
    study.write("all.con", unbound.all);
    study.write("receptors.dat", unbound.receptors);
    study.line(14) = unbound.format;
    std::string says = "The file " + study.text(unbound.file) + unbound.says;
    const std::size_t other = says.find("OTHER");
    if (other != says.npos) says.replace(other, 5, study.text("all.con"));
    EXPECT_EQ(study.run().sentence, says);
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
  }
}

}  // namespace
}  // namespace korventally::engine
