#include "run/control_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "run/batch_file.h"

namespace korventally::testing {
namespace {

class ControlFile : public ::testing::Test {
 protected:
  ControlFile() {
    desktop.makeFolder("C:\\Study\\");
    basModule::analysisCase = AnalysisCase{};
    initialiseCase();
    theCase.WorkDir = "C:\\Study\\";
    theCase.ListFile = "korventally.lst";
    theCase.Species = "SO2";
    theCase.StartYear = "2009";
    theCase.StartMonth = "01";
    theCase.StartDay = "02";
    theCase.StartHour = "03";
    theCase.RunLength = "8760";
    theCase.AmbientBackground = "0";
    theCase.AveragingHours = "24";
    theCase.StandardLimit = "365.0";
    theCase.SilLimit = "5.0";
    theCase.ReceptorFormat = "1";
    theCase.ReceptorFile = "C:\\Study\\recept.dat";
    theCase.Rank1Flag = "F";
  }

  void useGroups(std::int32_t count) {
    theCase.GroupCount = count;
    for (std::size_t slot = 1; slot <= static_cast<std::size_t>(count); ++slot) {
      theCase.GroupConcFiles[slot] = "C:\\Study\\g" + std::to_string(slot) + ".con";
    }
  }

  std::string writtenBytes() {
    EXPECT_TRUE(WriteControlFile());
    return desktop.fileBytes("C:\\Study\\korventally.inp").value_or("missing");
  }

  Desktop desktop;
  AnalysisCase& theCase = basModule::analysisCase;
};

/// The whole file as the engine expects it, spelled out from the layout alone.
std::string expectedBytes(std::int32_t groups, const std::string& groupLines) {
  const std::string prefix = "                             :";
  std::string values = "C:\\Study\\korventally.lst|SO2|2009,01,02,03|8760|" +
                       std::to_string(groups) + "|" + groupLines +
                       "1000000.0,0.0|0|24|365.0|1|C:\\Study\\recept.dat|1|5.0|2|F|0|";
  std::string bytes;
  std::size_t start = 0;
  for (std::size_t end; (end = values.find('|', start)) != std::string::npos; start = end + 1) {
    bytes += prefix + values.substr(start, end - start) + "\r\n";
  }
  return bytes;
}

TEST_F(ControlFile, HoldsTheExactBytesForTwoTwelveAndFiftyGroups) {
  std::string groupLines;
  for (std::int32_t slot = 1; slot <= 50; ++slot) {
    groupLines += "C:\\Study\\g" + std::to_string(slot) + ".con|" +
                  (slot == 1   ? "ALL_SOURCES"
                   : slot == 2 ? "FACILITY"
                               : "OTHER_" + std::to_string(slot - 2)) +
                  "|";
    if (slot != 2 && slot != 12 && slot != 50) continue;
    useGroups(slot);
    EXPECT_EQ(writtenBytes(), expectedBytes(slot, groupLines));
  }
}

TEST_F(ControlFile, WritesValuesUnchangedAndEmptyOnesAsTheBarePrefix) {
  useGroups(2);
  theCase.SilLimit = "";
  theCase.Species = " a, b ";
  theCase.GroupNames[1] = "M\u00FC \u20AC";
  const std::string bytes = writtenBytes();
  const std::string prefix = std::string(29, ' ') + ":";
  EXPECT_NE(bytes.find("\r\n" + prefix + " a, b \r\n"), std::string::npos);
  EXPECT_NE(bytes.find("\r\n" + prefix + "M\xFC \x80\r\n"), std::string::npos);
  EXPECT_NE(bytes.find("\r\n" + prefix + "\r\n"), std::string::npos);
}

TEST_F(ControlFile, ReadsBackWhateverItsLineEnds) {
  useGroups(50);
  theCase.GroupNames[7] = "M\u00FCll \u20AC, 2";
  theCase.AmbientBackground = " 1.5 ";
  theCase.SilLimit = "0.2";
  std::string bytes = writtenBytes();
  for (const char* lineEnd : {"\r\n", "\n"}) {
    desktop.putFile("C:\\case.inp", bytes);
    const auto read = readControlFile("case.inp");
    ASSERT_TRUE(read) << read.error().text;
    EXPECT_EQ(controlFileLines(read.value()), controlFileLines(theCase)) << lineEnd;
    EXPECT_EQ(read.value().AreaClass + read.value().Standard, "Class INAAQS");
    bytes.erase(std::remove(bytes.begin(), bytes.end(), '\r'), bytes.end());
  }
}

TEST_F(ControlFile, NamesTheWorkingDirectoryByItsListFileOrItsOwnFolder) {
  const struct {
    const char *listFile, *workDir, *name;
  } rows[] = {{"D:\\x\\y.lst", "D:\\x\\", "y.lst"},
              {"y.lst", "C:\\Study\\", "y.lst"},
              {"out\\y.lst", "out\\", "y.lst"},
              {"C:/x/y.lst", "C:/x/", "y.lst"},
              {"", "C:\\Study\\", ""}};
  useGroups(2);
  for (const auto& row : rows) {
    theCase.WorkDir = "";
    theCase.ListFile = row.listFile;
    EXPECT_TRUE(writeTextFile("C:\\Study\\case.inp", controlFileLines(theCase)));
    const auto read = readControlFile("Study\\case.inp");
    ASSERT_TRUE(read) << read.error().text;
    EXPECT_EQ(read.value().WorkDir, row.workDir);
    EXPECT_EQ(read.value().ListFile, row.name);
  }
}

TEST_F(ControlFile, IsReadOnlyWhenEveryLineIsAsItShouldBe) {
  useGroups(2);
  const std::vector<std::string> sound = controlFileLines(theCase);
  const std::string x133(133, 'x'), list = "C:\\" + x133.substr(1);
  const std::string lead = "does not begin with 29 blanks and a colon.",
                    tooLong = " as a text of 133 characters; its box takes 132 characters.",
                    badStart =
                        "; it must be a year of four digits and month, day and hour of two, "
                        "joined by commas.",
                    badCount = "; it must be a whole number from 2 to 50.";
  const struct {
    std::size_t line;
    std::string value, reason;  ///< without a reason the file is good
    std::size_t leadFrom = 0;
  } rows[] = {
      {1, list, lead, 1},
      {20, "0", lead, 1},
      {4, "87\t60", "holds a control character."},
      {1, list, ""},
      {1, "C:\\" + x133, "gives the list file's name" + tooLong},
      {2, "CO", "gives the species as \"CO\"; it must be SO2, PM10 or NOX."},
      {3, "2009,01,02", "gives the start time as \"2009,01,02\"" + badStart},
      {3, "2009,1,2,3,", "gives the start time as \"2009,1,2,3,\"" + badStart},
      {3, "2009,1,2,003", "gives the start time as \"2009,1,2,003\"" + badStart},
      {3, "2009,1,2,", ""},
      {4, "", ""},
      {4, "1234567", "gives the run length as \"1234567\"; its box takes 6 characters."},
      {5, "51", "gives the number of source groups as \"51\"" + badCount},
      {5, "2 ", "gives the number of source groups as \"2 \"" + badCount},
      {6, x133, "gives the concentration file" + tooLong},
      {7, "ALL_SOURCES 14",
       "gives the group name as \"ALL_SOURCES 14\"; its box takes 13 characters."},
      {7, "13 \u00C4\u00C4\u00C4\u00C4\u00C4\u00C4\u00C4\u00C4\u00C4\u00C4", ""},
      {10, "1,0", "gives the fixed value as \"1,0\"; it must be 1000000.0,0.0."},
      {11, x133, "gives the ambient background" + tooLong},
      {12, "1", "gives the averaging period in hours as \"1\"; it must be 3, 24, 8760 or 8784."},
      {13, "any", ""},
      {14, "3", "gives the receptor file format as \"3\"; it must be 1 or 2."},
      {15, x133, "gives the receptor file" + tooLong},
      {16, "2", "gives the fixed value as \"2\"; it must be 1."},
      {18, "1", "gives the fixed value as \"1\"; it must be 2."},
      {19, "t", "gives the rank 1 option as \"t\"; it must be T or F."},
      {20, "0 ", "gives the fixed value as \"0 \"; it must be 0."}};
  for (const auto& row : rows) {
    std::vector<std::string> lines = sound;
    lines.at(row.line - 1) = (std::string(29, ' ') + ":" + row.value).substr(row.leadFrom);
    EXPECT_TRUE(writeTextFile("C:\\case.inp", lines));
    const auto read = readControlFile("C:\\case.inp");
    const std::string line = "Line " + std::to_string(row.line) + " ";
    EXPECT_EQ(read ? line : read.error().text, line + row.reason);
  }
}

TEST_F(ControlFile, IsReadOnlyWhenItIsWhole) {
  useGroups(2);
  const std::string bytes = writtenBytes(), line = std::string(29, ' ') + ":0\r\n";
  const std::string count = "; with 2 source groups (line 5) it must have 20.";
  const struct {
    std::string bytes, reason;
  } rows[] = {
      {"", "The file is empty."},
      {bytes.substr(0, bytes.find("8760") + 6), "Line 5 is missing."},
      {bytes.substr(0, bytes.size() - line.size()), "The file has 19 lines" + count},
      {bytes + "\n", "The file has 21 lines" + count},
      {bytes.substr(0, bytes.size() - 2), "Line 20 has no line end; the file may be cut short."},
      {bytes + std::string(300000, ' '), "The file is far too long for one."}};
  for (const auto& row : rows) {
    desktop.putFile("C:\\case.inp", row.bytes);
    const auto read = readControlFile("C:\\case.inp");
    EXPECT_EQ(read ? "read" : read.error().text, row.reason);
  }
  desktop.failCall(Desktop::Operation::kRead, desktop.calls(Desktop::Operation::kRead) + 1,
                   Error{ErrorKind::kOther, 5, "Access is denied.", "C:\\case.inp"});
  EXPECT_EQ(readControlFile("C:\\case.inp").error().code, 5);
}

TEST_F(ControlFile, IsHandedToTheEngineByTheBatchFile) {
  desktop.setInstallationDirectory("D:\\Pro%gram");
  EXPECT_EQ(batchFileLines(theCase),
            (std::vector<std::string>{
                "\"D:\\Pro%%gram\\korventally.exe\" \"C:\\Study\\korventally.inp\""}));
  desktop.setInstallationDirectory("D:\\");
  theCase.DebugMode = true;
  EXPECT_EQ(batchFileLines(theCase),
            (std::vector<std::string>{"\"D:\\\\korventally.exe\" \"C:\\Study\\korventally.inp\"",
                                      "pause"}));
}

}  // namespace
}  // namespace korventally::testing
