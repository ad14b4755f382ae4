#include "engine/control_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

TEST(ControlFile, GivesTheCaseForTheFewestAndTheMostGroups) {
  for (const std::size_t groups : {2u, 12u, 50u}) {
    Study study(groups);
    study.line(2) = "SO2 and more";
    study.line(3) = "2008,02,29,24";
    study.line(5 + 2 * groups + 2) = "12.5";
    study.line(5 + 2 * groups + 10) = "T";
    study.writeControl();
    const Case theCase = parseControl(readControlText(study.path("korventally.inp")));
    EXPECT_EQ(theCase.species, "SO2 and more");
    EXPECT_EQ(theCase.start, hourFromDate(2008, 3, 1, 0));
    EXPECT_EQ(theCase.runHours, 6);
    ASSERT_EQ(theCase.groups.size(), groups);
    EXPECT_EQ(theCase.groups[1].name, "FACILITY");
    EXPECT_EQ(theCase.groups[1].file, study.text("group_2.con"));
    EXPECT_EQ(theCase.groups.back().fileLine, 4 + 2 * groups);
    EXPECT_EQ(theCase.background, 12.5);
    EXPECT_EQ(theCase.averagingHours, 3);
    EXPECT_EQ(theCase.standard, 8.0);
    EXPECT_EQ(theCase.receptorLine, 11 + 2 * groups);
    EXPECT_EQ(theCase.sil, 1.0);
    EXPECT_TRUE(theCase.excludeRank1);
  }
}

struct BadLine {
  std::size_t line;
  const char* value;
  const char* says;  // a part of the sentence that only this fault has
};

// A study of three groups: lines 6 to 11 are the groups, 12 to 22 the rest.
const BadLine kBadLines[] = {
    {2, "", "gives no species"},
    {2, "SO2\tx", "holds a control character"},
    {3, "2009,01,01", "year, month, day and hour joined by commas"},
    {3, "2009,01,01,00,", "year, month, day and hour joined by commas"},
    {3, "2009,1.5,01,00", "year, month, day and hour joined by commas"},
    {3, "2009, 1,01,00", "year, month, day and hour joined by commas"},
    {3, "2009,02,29,00", "there is no such hour"},
    {3, "1900,02,29,00", "there is no such hour"},
    {3, "2009,13,01,00", "there is no such hour"},
    {3, "2009,01,01,25", "there is no such hour"},
    {3, "0000,01,01,01", "the year must be 1900 or later, in four digits"},
    {4, "0", "a whole number from 1 to 999999"},
    {4, "", "a whole number from 1 to 999999"},
    {4, "24.0", "a whole number from 1 to 999999"},
    {4, "99999999999999999999", "a whole number from 1 to 999999"},
    {5, "1", "a whole number from 2 to 50"},
    {5, "51", "a whole number from 2 to 50"},
    {5, " 3", "a whole number from 2 to 50"},
    {5, "+3", "a whole number from 2 to 50"},
    {6, "", "gives no concentration file"},
    {8, "   ", "gives no concentration file"},
    {9, "", "gives no group name"},
    {9, "FOURTEEN_CHARS", "may have 13 characters"},
    {12, "1000000.0,0", "instead of \"1000000.0,0.0\""},
    {13, "", "ambient background as \"\"; it must be a number not below 0"},
    {13, "-1", "ambient background as \"-1\""},
    {13, "12,5", "ambient background as \"12,5\""},
    {13, "nan", "ambient background as \"nan\""},
    {13, "1e16", "ambient background as \"1e16\""},
    {14, "annual", "a whole number from 1 to 8784"},
    {14, "0", "a whole number from 1 to 8784"},
    {14, "8785", "a whole number from 1 to 8784"},
    {15, "1e16", "must be a number above 0 and at most 1e15"},
    {15, "", "standard or increment as \"\"; it must be a number above 0"},
    {15, "0", "standard or increment as \"0\""},
    {15, "inf", "standard or increment as \"inf\""},
    {15, "91.0 ", "standard or increment as \"91.0 \""},
    {16, "3", "must be \"1\" or \"2\""},
    {17, "", "gives no receptor file"},
    {18, "2", "is \"2\" instead of \"1\""},
    {19, "five", "significant impact level as \"five\""},
    {20, "1", "is \"1\" instead of \"2\""},
    {21, "t", "must be \"T\" or \"F\""},
    {22, "", "is \"\" instead of \"0\""},
};

TEST(ControlFile, RefusesEveryLineThatIsNotSoundAndNamesIt) {
  const Study sound;
  for (const BadLine& bad : kBadLines) {
    SCOPED_TRACE(std::to_string(bad.line) + " = " + bad.value);
    ControlText text;
    for (const std::string& value : sound.control) text.lines.push_back(sound.prefix + value);
    text.lines.at(bad.line - 1) = sound.prefix + bad.value;
    std::string sentence;
    try {
      static_cast<void>(parseControl(text));
    } catch (const std::exception& fault) {
      sentence = fault.what();
    }
    EXPECT_EQ(sentence.find("Line " + std::to_string(bad.line) + " of the control file"), 0u)
        << sentence;
    EXPECT_NE(sentence.find(bad.says), std::string::npos) << sentence;
  }
}

struct BadFile {
  const char* name;
  std::function<void(Study&)> change;
  const char* says;
};

TEST(ControlFile, RefusesAWrongShapeAndSaysSoInTheListFile) {
  const BadFile badFiles[] = {
      {"a line too few", [](Study& s) { s.control.pop_back(); },
       "The control file has 21 lines; with 3 source groups (line 5) it must have 22."},
      {"a line too many", [](Study& s) { s.control.emplace_back("0"); }, "has 23 lines"},
      {"only the list file", [](Study& s) { s.control.resize(1); },
       "Line 2 of the control file is"},
      {"a group count that lies", [](Study& s) { s.line(5) = "4"; }, "it must have 24."},
  };
  for (const BadFile& bad : badFiles) {
    SCOPED_TRACE(bad.name);
    Study study;
    bad.change(study);
    const Result result = study.run();
    EXPECT_EQ(result.outcome, Outcome::kFailed);
    EXPECT_NE(result.sentence.find(bad.says), std::string::npos) << result.sentence;
    EXPECT_EQ(study.lastLine(), "RUN FAILED");
    const std::vector<std::string> list = study.list();
    EXPECT_EQ(list.at(list.size() - 2), "ERROR: " + result.sentence);
  }
}

TEST(ControlFile, RefusesAnotherPrefixAndACutLastLine) {
  Study study;
  study.writeControl();
  std::string text = study.read("korventally.inp");
  study.write("cut.inp", text.substr(0, text.size() - 2));
  EXPECT_EQ(runCase(study.path("cut.inp")).sentence,
            "Line 22 of the control file has no line end; the file may be cut short.");
  text.replace(text.find("\r\n") + 2, 1, "");
  study.write("shifted.inp", text);
  EXPECT_EQ(runCase(study.path("shifted.inp")).sentence,
            "Line 2 of the control file does not begin with 29 blanks and a colon.");
  EXPECT_EQ(study.lastLine(), "RUN FAILED");
}

}  // namespace
}  // namespace korventally::engine
