#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

TEST(Run, RepeatsTheCaseAndEndsWithTheVerdict) {
  Study study;
  // A billion seconds after 1970, far enough from midnight for every time zone.
  const auto moment = std::chrono::sys_seconds(std::chrono::seconds(1000000000 + 10 * 3600));
  std::filesystem::last_write_time(study.path("receptors.dat"),
                                   std::chrono::file_clock::from_sys(moment));
  EXPECT_EQ(study.run().outcome, Outcome::kCompleted);
  const std::string list = study.read("out.lst");
  expectSays(list, {"  Control file:                 " + study.text("korventally.inp") + "\r\n",
                    "  List file:                    " + study.text("out.lst") + "\r\n",
                    "  Species:                      SO2\r\n",
                    "  Standard or increment:        8.0 ug/m**3\r\n",
                    "                 36 bytes, written 2001-09-09 "});
  for (const char* name : {"all.con", "group_2.con", "group_3.con", "receptors.dat"}) {
    EXPECT_NE(list.find(study.text(name)), std::string::npos) << name;
  }
  EXPECT_TRUE(list.ends_with("\r\nRUN COMPLETED\r\n"));
}

TEST(Run, ReplacesAnOldListFileAndItsVerdict) {
  Study study;
  study.write("out.lst", std::string(100000, 'x') + "\r\nRUN COMPLETED\r\n");
  study.line(12) = "0";
  EXPECT_EQ(study.run().outcome, Outcome::kFailed);
  const std::string list = study.read("out.lst");
  EXPECT_EQ(list.find("xx"), std::string::npos);
  EXPECT_EQ(list.find("RUN COMPLETED"), std::string::npos);
  EXPECT_EQ(study.lastLine(), "RUN FAILED");
}

TEST(Run, NamesTheControlLineOfAFileThatCannotBeOpened) {
  for (const std::size_t line : {6u, 8u, 10u, 17u}) {
    for (const bool folder : {false, true}) {
      Study study;
      const std::string path = study.line(line);
      std::filesystem::remove(pathFromText(path).native());
      if (folder) std::filesystem::create_directory(pathFromText(path).native());
      const Result result = study.run();
      EXPECT_EQ(result.outcome, Outcome::kFailed);
      const std::string start = "Line " + std::to_string(line) + " of the control file: The file " +
                                path + " cannot be opened: ";
      EXPECT_EQ(result.sentence.find(start), 0u) << result.sentence;
      EXPECT_EQ(study.lastLine(), "RUN FAILED");
    }
  }
}

TEST(Run, NeverEmptiesAFileThatItWasToldToRead) {
  for (const std::size_t line : {6u, 8u, 17u}) {
    Study study;
    study.line(1) = study.line(line);
    const std::string before = study.read("all.con");
    const Result result = study.run();
    EXPECT_EQ(result.outcome, Outcome::kNoListFile);
    EXPECT_NE(result.sentence.find("named in line " + std::to_string(line)), std::string::npos)
        << result.sentence;
    EXPECT_EQ(study.read("all.con"), before);
  }
  Study study;
  study.line(1) = study.text("korventally.inp");
  EXPECT_NE(study.run().sentence.find("is also the control file"), std::string::npos);
  EXPECT_NE(study.read("korventally.inp"), "");
}

TEST(Run, TakesAValueForAPathOnlyWhereItMayBeOne) {
  Study study;
  study.line(2) = study.line(1);
  EXPECT_EQ(study.run().sentence, "");
  EXPECT_EQ(study.lastLine(), "RUN COMPLETED");
  // With a line too many, nobody knows which value is which.
  study.control.push_back("0");
  EXPECT_EQ(study.run().outcome, Outcome::kNoListFile);
}

TEST(Run, SeesThroughOtherSpellingsOfTheSameFile) {
  Study study;
  std::filesystem::create_directory(study.path("sub"));
  study.line(1) = textFromPath(study.path("sub") / ".." / "group_2.con");
  EXPECT_EQ(study.run().outcome, Outcome::kNoListFile);
  EXPECT_NE(study.read("group_2.con"), "");
}

// Copies a study's files into the folder, points the control file at them and runs it there.
Result runInFolder(Study& study, const std::filesystem::path& folder) {
  for (const std::size_t line : {1u, 6u, 8u, 10u, 17u}) {
    const std::filesystem::path from = pathFromText(study.line(line)).native();
    const std::filesystem::path to = folder / from.filename();
    if (line != 1) std::filesystem::copy_file(from, to);
    study.line(line) = textFromPath(to);
  }
  return study.run();
}

TEST(Run, ReadsPathsInTheCodePageOfTheSystem) {
  Study study;
  const std::filesystem::path folder =
      study.path("") / std::filesystem::path(u8"Gr\u00f6\u00dfe & 100 %");
  if (pathFromText(textFromPath(folder)) != folder) GTEST_SKIP() << "this code page lacks \u00f6";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(runInFolder(study, folder).sentence, "");
  EXPECT_TRUE(std::filesystem::exists(folder / "out.lst"));
}

TEST(Run, ReadsPathsLongerThanOldSystemsAllowed) {
  Study study;
  std::filesystem::path folder = study.path("");
  for (int i = 0; i < 4; ++i) folder /= std::string(90, static_cast<char>('a' + i));
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) GTEST_SKIP() << "the C++ library of this system cannot make such a folder";
  EXPECT_EQ(runInFolder(study, folder).sentence, "");
  EXPECT_TRUE(std::filesystem::exists(folder / "out.lst"));
}

TEST(Run, SaysWhenThereIsNoPlaceForAVerdict) {
  Study study;
  study.line(1) = textFromPath(study.path("no such folder") / "out.lst");
  const Result result = study.run();
  EXPECT_EQ(result.outcome, Outcome::kNoListFile);
  EXPECT_NE(result.sentence.find("cannot be created: "), std::string::npos) << result.sentence;
  EXPECT_NE(runCase(study.path("missing.inp")).sentence.find("cannot be opened: "),
            std::string::npos);
  study.write("empty.inp", "");
  EXPECT_EQ(runCase(study.path("empty.inp")).sentence, "The control file is empty.");
}

}  // namespace
}  // namespace korventally::engine
