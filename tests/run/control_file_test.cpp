#include "run/control_file.h"

#include <gtest/gtest.h>

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
