#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

TEST(Run, RepeatsTheCaseAndEndsWithTheVerdict) {
  Study study;
  EXPECT_EQ(study.Run().outcome, Outcome::kCompleted);
  const std::string list = study.Read("out.lst");
  EXPECT_NE(list.find("Species:                      SO2\r\n"), std::string::npos) << list;
  for (const char* name : {"all.con", "group_2.con", "group_3.con", "receptors.dat"}) {
    EXPECT_NE(list.find(study.Text(name)), std::string::npos) << name;
  }
  EXPECT_TRUE(list.ends_with("\r\nRUN COMPLETED\r\n"));
}

TEST(Run, ReplacesAnOldListFileAndItsVerdict) {
  Study study;
  study.Write("out.lst", std::string(100000, 'x') + "\r\nRUN COMPLETED\r\n");
  study.line(12) = "0";
  EXPECT_EQ(study.Run().outcome, Outcome::kFailed);
  const std::string list = study.Read("out.lst");
  EXPECT_EQ(list.find("xx"), std::string::npos);
  EXPECT_EQ(list.find("RUN COMPLETED"), std::string::npos);
  EXPECT_EQ(study.LastLine(), "RUN FAILED");
}

TEST(Run, NamesTheControlLineOfAFileThatCannotBeOpened) {
  for (const std::size_t line : {6u, 8u, 10u, 17u}) {
    for (const bool folder : {false, true}) {
      Study study;
      const std::string path = study.line(line);
      std::filesystem::remove(PathFromText(path));
      if (folder) std::filesystem::create_directory(PathFromText(path));
      const Result result = study.Run();
      EXPECT_EQ(result.outcome, Outcome::kFailed);
      const std::string start = "Line " + std::to_string(line) + " of the control file: The file " +
                                path + " cannot be opened: ";
      EXPECT_EQ(result.sentence.find(start), 0u) << result.sentence;
      EXPECT_EQ(study.LastLine(), "RUN FAILED");
    }
  }
}

TEST(Run, NeverEmptiesAFileThatItWasToldToRead) {
  for (const std::size_t line : {6u, 8u, 17u}) {
    Study study;
    study.line(1) = study.line(line);
    const std::string before = study.Read("all.con");
    const Result result = study.Run();
    EXPECT_EQ(result.outcome, Outcome::kNoListFile);
    EXPECT_NE(result.sentence.find("named in line " + std::to_string(line)), std::string::npos)
        << result.sentence;
    EXPECT_EQ(study.Read("all.con"), before);
  }
  Study study;
  study.line(1) = study.Text("korventally.inp");
  EXPECT_NE(study.Run().sentence.find("is also the control file"), std::string::npos);
  EXPECT_NE(study.Read("korventally.inp"), "");
}

TEST(Run, TakesAValueForAPathOnlyWhereItMayBeOne) {
  Study study;
  study.line(2) = study.line(1);
  EXPECT_EQ(study.Run().sentence, "");
  EXPECT_EQ(study.LastLine(), "RUN COMPLETED");
  // With a line too many, nobody knows which value is which.
  study.control.push_back("0");
  EXPECT_EQ(study.Run().outcome, Outcome::kNoListFile);
}

TEST(Run, SeesThroughOtherSpellingsOfTheSameFile) {
  Study study;
  std::filesystem::create_directory(study.Path("sub"));
  study.line(1) = TextFromPath(study.Path("sub") / ".." / "group_2.con");
  EXPECT_EQ(study.Run().outcome, Outcome::kNoListFile);
  EXPECT_NE(study.Read("group_2.con"), "");
}

// Copies a study's files into the folder, points the control file at them and runs it there.
Result RunInFolder(Study& study, const std::filesystem::path& folder) {
  for (const std::size_t line : {1u, 6u, 8u, 10u, 17u}) {
    const std::filesystem::path from = PathFromText(study.line(line));
    const std::filesystem::path to = folder / from.filename();
    if (line != 1) std::filesystem::copy_file(from, to);
    study.line(line) = TextFromPath(to);
  }
  return study.Run();
}

TEST(Run, ReadsPathsInTheCodePageOfTheSystem) {
  Study study;
  const std::filesystem::path folder =
      study.Path("") / std::filesystem::path(u8"Gr\u00f6\u00dfe & 100 %");
  if (PathFromText(TextFromPath(folder)) != folder) GTEST_SKIP() << "this code page lacks \u00f6";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(RunInFolder(study, folder).sentence, "");
  EXPECT_TRUE(std::filesystem::exists(folder / "out.lst"));
}

TEST(Run, ReadsPathsLongerThanOldSystemsAllowed) {
  Study study;
  std::filesystem::path folder = study.Path("");
  for (int i = 0; i < 4; ++i) folder /= std::string(90, static_cast<char>('a' + i));
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) GTEST_SKIP() << "the C++ library of this system cannot make such a folder";
  EXPECT_EQ(RunInFolder(study, folder).sentence, "");
  EXPECT_TRUE(std::filesystem::exists(folder / "out.lst"));
}

TEST(Run, SaysWhenThereIsNoPlaceForAVerdict) {
  Study study;
  study.line(1) = TextFromPath(study.Path("no such folder") / "out.lst");
  const Result result = study.Run();
  EXPECT_EQ(result.outcome, Outcome::kNoListFile);
  EXPECT_NE(result.sentence.find("cannot be created: "), std::string::npos) << result.sentence;
  EXPECT_NE(RunCase(study.Path("missing.inp")).sentence.find("cannot be opened: "),
            std::string::npos);
  study.Write("empty.inp", "");
  EXPECT_EQ(RunCase(study.Path("empty.inp")).sentence, "The control file is empty.");
}

}  // namespace
}  // namespace korventally::engine
