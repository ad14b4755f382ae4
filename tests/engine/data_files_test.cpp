// Concentration and receptor files: what is read, and what every fault says.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "engine/line_reader.h"
#include "engine/receptor_file.h"
#include "tests/engine/model_files.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

struct BadText {
  const char* text;
  const char* says;  // behind "The file F, line N"
  std::size_t line;
};

// The study's two receptors, from 2009-01-01 00 on.
const BadText kBadConcentrations[] = {
    {"2009 1 1 0 1 1\n2009 1 1 2 1 1\n", " leaves a gap: 2009-01-01 02 after 2009-01-01 00.", 2},
    {"2009 1 1 0 1 1\n2009 1 1 0 1 1\n", " repeats the hour 2009-01-01 00.", 2},
    {"2009 1 1 1 1 1\n2009 1 1 0 1 1\n", " goes back in time: 2009-01-01 00 after 2009-01-01 01.",
     2},
    {"# head\n\n", " does not begin with year, month, day and hour of a real date.", 2},
    {"2009 1 1 x 1 1\n", " does not begin with year, month, day and hour of a real date.", 1},
    {"2009 2 29 0 1 1\n", " does not begin with year, month, day and hour of a real date.", 1},
    {",2009,1,1,0,1,1\n", " does not begin with year, month, day and hour of a real date.", 1},
    {"2009,,1,1,0,1,1\n", " does not begin with year, month, day and hour of a real date.", 1},
    {"2009 1 1\n", " does not begin with year, month, day and hour of a real date.", 1},
    {"2009 1 1 0 1 1\n# late\n", " does not begin with year, month, day and hour of a real date.",
     2},
    {"2009 1 1 0 1\n", " holds 1 value instead of 2, one for each receptor.", 1},
    {"2009 1 1 0 1 1 1\n", " holds 3 values instead of 2, one for each receptor.", 1},
    {"2009 1 1 0 1 -1\n", ", value 2 is \"-1\", which is negative.", 1},
    {"2009 1 1 0 nan 1\n", ", value 1 is \"nan\", which is not a number.", 1},
    {"2009 1 1 0 1 1\n2009 1 1 1 1 1", " has no line end; the file may be cut short.", 2},
    {"2008 12 31 22 1 one\n", ", value 2 is \"one\", which is not a number.", 1},
};

TEST(ConcentrationFile, RefusesWhatIsWrongAndNamesTheLine) {
  for (const BadText& bad : kBadConcentrations) {
    SCOPED_TRACE(bad.text);
    Study study;
    study.write("group_2.con", bad.text);
    const Result result = study.run();
    EXPECT_EQ(result.outcome, Outcome::kFailed);
    EXPECT_EQ(result.sentence, "The file " + study.text("group_2.con") + ", line " +
                                   std::to_string(bad.line) + bad.says);
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
  }
}

TEST(ConcentrationFile, MustHoldAllHoursOfTheAverages) {
  const std::string needs = ", but the run needs 2009-01-01 00 to 2009-01-01 05.";
  const std::vector<std::string> five(5, "1 1");
  Study study;
  study.writeHours("group_3.con", five);
  EXPECT_EQ(study.run().sentence, "The file " + study.text("group_3.con") +
                                      " holds the hours 2009-01-01 00 to 2009-01-01 04" + needs);
  study.write("group_3.con", "2009 1 1 1 1 1\n");
  EXPECT_EQ(study.run().sentence, "The file " + study.text("group_3.con") +
                                      " holds the hours 2009-01-01 01 to 2009-01-01 01" + needs);
  study.write("group_3.con", "# nothing\n");
  EXPECT_EQ(study.run().sentence, "The file " + study.text("group_3.con") + " holds no hour.");
  // Five hours are enough for the one 4-hour block that fits into a run of five.
  study.writeHours("group_3.con", five);
  study.line(4) = "5";
  study.line(14) = "4";
  EXPECT_EQ(study.run().sentence, "");
}

TEST(ConcentrationFile, ReportsTheFirstFaultyFileWhicheverThreadIsFaster) {
  for (int round = 0; round < 5; ++round) {
    Study study(8);
    std::vector<std::string> hours(3000, "1 1");
    study.writeHours("group_3.con", hours);
    study.write("group_3.con", study.read("group_3.con") + "x\n");
    for (const char* name : {"group_4.con", "group_7.con"}) study.write(name, "x\n");
    EXPECT_EQ(study.run().sentence.find("The file " + study.text("group_3.con") + ", line 3002 "),
              0u);
  }
}

TEST(ConcentrationFile, RefusesALineThatNeverEnds) {
  Study study;
  study.write("all.con", "2009 1 1 0 1 1\n" + std::string(17000000, ' '));
  EXPECT_EQ(study.run().sentence,
            "The file " + study.text("all.con") +
                ", line 2 is longer than 16,777,216 bytes; is this the right file?");
}

// Lines far longer than the block that is read at once, and cut at every place by its end.
TEST(ConcentrationFile, ReadsLinesOfAnyLengthAcrossBlocks) {
  constexpr std::size_t kReceptors = 40000;
  Study study(2);
  std::string receptors, row;
  for (std::size_t i = 0; i < kReceptors; ++i) {
    receptors += std::to_string(i) + " 0 R" + std::to_string(i) + "\n";
    row += " " + std::to_string(i % 7) + ".00000E-06";
  }
  study.write("receptors.dat", receptors);
  for (const char* name : {"all.con", "group_2.con"}) {
    study.writeHours(name, std::vector<std::string>(6, row));
  }
  ASSERT_EQ(study.run().sentence, "");
  // i % 7 is 6 at a seventh of the receptors, but for the last, incomplete seven.
  study.line(3 + 10) = "5.5";
  EXPECT_EQ(study.run().sentence, "");
  EXPECT_NE(study.read("out.lst").find("Receptors that exceed:        5,714 of 40,000"),
            std::string::npos)
      << study.read("out.lst");
}

// A line end at every place around the end of a block, and lines of several blocks.
TEST(LineReader, FindsLineEndsWhereverTheBlocksEnd) {
  const Study study;
  for (std::size_t first = LineReader::kBlock - 3; first <= LineReader::kBlock + 3; ++first) {
    for (const char* end : {"\n", "\r\n"}) {
      const std::vector<std::size_t> sizes = {first, 0, 1, 2 * LineReader::kBlock, first, 5};
      std::string text;
      for (const std::size_t size : sizes) text += std::string(size, 'x') + end;
      study.write("lines", text + "tail");
      InputFile file(study.path("lines"));
      LineReader reader(file, 10 * LineReader::kBlock);
      std::string_view line;
      for (const std::size_t size : sizes) {
        ASSERT_TRUE(reader.next(line));
        ASSERT_EQ(line.size(), size);
        ASSERT_TRUE(reader.complete());
      }
      ASSERT_TRUE(reader.next(line));
      EXPECT_EQ(line, "tail");
      EXPECT_FALSE(reader.complete());
      EXPECT_FALSE(reader.next(line));
      EXPECT_EQ(reader.lineNumber(), sizes.size() + 1);
    }
  }
}

// With and without its header, and unformatted; and files that only look a little like it.
TEST(ModelFile, IsNamedForWhatItIsWithTheWayIn) {
  const std::string formatted = readTestData("plot/all.pst");
  const std::string rows = formatted.substr(formatted.find("\n  ") + 1);
  const std::string binary = readTestData("unform/all.bin");
  const std::string way = ". Make a case of the model's files first: korventally import.";
  for (const char* name : {"group_2.con", "receptors.dat"}) {
    for (const std::string& bytes : {formatted, rows, binary, binary.substr(0, 40)}) {
      Study study;
      study.write(name, bytes);
      const bool text = bytes == formatted || bytes == rows;
      EXPECT_EQ(study.run().sentence, "The file " + study.text(name) +
                                          " is a dispersion model's own output, " +
                                          (text ? "formatted" : "unformatted") + way);
    }
    std::string other = binary;
    other[4 + 88] = 'x';  // not the record's length again
    for (const std::string& bytes : {other, std::string("* a remark\n"), rows.substr(0, 85) + "\n",
                                     std::string("1 2 3 4 5 1-HR\n")}) {
      Study study;
      study.write(name, bytes);
      const std::string sentence = study.run().sentence;
      EXPECT_EQ(sentence.find("The file " + study.text(name) + ", line "), 0u) << sentence;
    }
  }
}

struct BadReceptors {
  int format;
  const char* text;
  const char* says;
};

const BadReceptors kBadReceptors[] = {
    {1, "", " holds no receptor."},
    {1, "# only a head\n", " holds no receptor."},
    {1, "1 2\n", ", line 1 holds 2 fields instead of 3: X, Y, ID."},
    {1, "1 2 A B\n", ", line 1 holds 4 fields instead of 3: X, Y, ID."},
    {1, "1 2 A\n\n", ", line 2 holds 0 fields instead of 3: X, Y, ID."},
    {1, "1 2 A\n3 4 A\n", ", line 2 repeats the receptor \"A\"."},
    {1, "x 2 A\n", ", line 1 gives X as \"x\", which is no coordinate."},
    {1, "1 1e10 A\n", ", line 1 gives Y as \"1e10\", which is no coordinate."},
    {1, "1 nan A\n", ", line 1 gives Y as \"nan\", which is no coordinate."},
    {1, "1 2 THIRTEEN_LONG\n",
     ", line 1 gives the ID \"THIRTEEN_LONG\"; it must have 1 to 12 characters and no control "
     "character."},
    {1, "1,2,\n",
     ", line 1 gives the ID \"\"; it must have 1 to 12 characters and no control character."},
    {1, "1 2 \x7F\n",
     ", line 1 gives the ID \"?\"; it must have 1 to 12 characters and no control character."},
    {1, "1 2 A", ", line 1 has no line end; the file may be cut short."},
    {2, "1 2 A\n", ", line 1 holds 3 fields instead of 5: rank, value, X, Y, ID."},
    {2, "0 5.5 1 2 A\n", ", line 1 gives the rank as \"0\"; it must be a whole number from 1 on."},
    {2, "1 high 1 2 A\n", ", line 1 gives the value as \"high\", which is no number."},
    {2, "1 9 1 2 A\n2 8 1 3 A\n", ", line 2 puts the receptor \"A\" at another place than before."},
};

TEST(ReceptorFile, RefusesWhatIsWrongAndNamesTheLine) {
  for (const BadReceptors& bad : kBadReceptors) {
    SCOPED_TRACE(bad.text);
    Study study;
    study.line(16) = std::to_string(bad.format);
    study.write("receptors.dat", bad.text);
    EXPECT_EQ(study.run().sentence, "The file " + study.text("receptors.dat") + bad.says);
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
  }
}

TEST(ReceptorFile, TakesReceptorsOfARankedListInOrderOfFirstAppearance) {
  const Study study;
  study.write("ranked.dat",
              "# rank value X Y ID\r\n1, 90.5, 3, 4, B\r\n2, 80, 1, 2, A\r\n"
              "3, 70, 3, 4, B\r\n4\t60\t5 6 C\r\n");
  InputFile file(study.path("ranked.dat"));
  const Receptors receptors = readReceptors(file, 2);
  ASSERT_EQ(receptors.list.size(), 3u);
  EXPECT_EQ(receptors.list[0].id + receptors.list[1].id + receptors.list[2].id, "BAC");
  EXPECT_EQ(receptors.list[1].y, 2.0);
  EXPECT_EQ(receptors.lines, 5u);
}

}  // namespace
}  // namespace korventally::engine
