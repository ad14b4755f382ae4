// The program itself, as a user starts it: what it says where, and how it ends.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/system_files.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

struct Said {
  int exitCode = -1;
  std::string output, error;
};

// Starts the program through the shell, which puts what it says into files of the study.
Said start(const Study& study, const std::string& argument, const std::string& output = "") {
  const std::filesystem::path tests = testing::internal::GetArgvs()[0];
  auto program = tests.parent_path() / ".." / ".." / "engine" / "korventally";
  std::string command = "\"" + program.make_preferred().string() + "\" " + argument + " 2> \"" +
                        study.text("error") + "\" " +
                        (output.empty() ? " > \"" + study.text("output") + "\"" : output);
  Said said;
#ifdef _WIN32
  said.exitCode = std::system(("\"" + command + "\"").c_str());
#else
  said.exitCode = WEXITSTATUS(std::system(command.c_str()));
#endif
  said.output = study.read("output");
  said.error = study.read("error");
  std::erase(said.output, '\r');
  return said;
}

TEST(CommandLine, AnswersQuestionsAboutItself) {
  const Study study;
  for (const std::string question : {"--help", "\"/?\"", "--version", "import --help"}) {
    const Said said = start(study, question);
    EXPECT_EQ(said.exitCode, 0) << question;
    EXPECT_EQ(said.output.find("KORVENTALLY REFERENCE ENGINE, version "), 0u) << question;
    EXPECT_EQ(said.output.find("korventally CONTROL-FILE ") == said.output.npos,
              question == "--version");
    EXPECT_EQ(said.error, "") << question;
  }
  const Said said = start(study, "");
  EXPECT_EQ(said.exitCode, 2);
  EXPECT_EQ(said.output, "");
  EXPECT_NE(said.error.find("korventally CONTROL-FILE "), std::string::npos);
}

TEST(CommandLine, SaysWhatItReadAndHowItEnded) {
  Study study;
  study.writeControl();
  const std::string control = "\"" + study.text("korventally.inp") + "\"";
  Said said = start(study, control);
  EXPECT_EQ(said.exitCode, 0);
  EXPECT_EQ(said.output, study.text("receptors.dat") + ": 2 receptors\n" + study.text("all.con") +
                             ": 6 hours\n" + study.text("group_2.con") + ": 6 hours\n" +
                             study.text("group_3.con") + ": 6 hours\nRUN COMPLETED, see " +
                             study.text("out.lst") + "\n");
  EXPECT_EQ(said.error, "");
  study.write("group_2.con", "x\n");
  said = start(study, control);
  EXPECT_EQ(said.exitCode, 1);
  EXPECT_TRUE(said.output.ends_with("6 hours\nRUN FAILED, see " + study.text("out.lst") + "\n"));
  EXPECT_EQ(said.error.find("korventally: The file " + study.text("group_2.con")), 0u);
  said = start(study, "\"" + study.text("missing.inp") + "\"");
  EXPECT_EQ(said.exitCode, 2);
  EXPECT_EQ(said.output, "RUN FAILED\n");
}

TEST(CommandLine, ImportsAModelsFiles) {
  const Study study;
  const std::string file = " \"" + std::string(KORVENTALLY_TEST_DATA) + "/plot/all.pst\"";
  Said said = start(study, "import --out \"" + study.text("case") + "\"" + file);
  EXPECT_EQ(said.exitCode, 0);
  EXPECT_EQ(said.error, "");
  std::string report = study.read("case/import.txt");
  std::erase(report, '\r');
  EXPECT_EQ(said.output, report + "\n");
  said = start(study, "import" + file + file);
  EXPECT_EQ(said.exitCode, 1);
  EXPECT_EQ(said.output, "");
  EXPECT_EQ(said.error.find("korventally import: --out FOLDER is missing"), 0u);
  said = start(study, "import");
  EXPECT_EQ(said.exitCode, 1);
  EXPECT_EQ(said.error.find("korventally import: No file of a dispersion model is given."), 0u);
}

#ifndef _WIN32
// A file that is opened next gets the number of what is closed, and must not get its lines.
TEST(CommandLine, KeepsItsLinesOutOfTheListFileWhenNothingIsOpen) {
  Study study;
  ASSERT_EQ(study.run().sentence, "");
  // Between the moment of the run and how long it took.
  const auto lasting = [&] {
    const std::string list = study.read("out.lst");
    const std::size_t begin = list.find("\nCASE");
    return list.substr(begin, list.find("Elapsed time") - begin);
  };
  const std::string before = lasting();
  const std::string control = "\"" + study.text("korventally.inp") + "\"";
  for (const char* closed : {"<&- >&- 2>&-", ">&-", "| true"}) {
    EXPECT_EQ(start(study, control, closed).exitCode, 0) << closed;
    EXPECT_EQ(lasting(), before) << closed;
    EXPECT_EQ(study.lastLine(), "RUN COMPLETED") << closed;
  }
}
#endif

TEST(CommandLine, TellsHowFarAFileIsThatTakesLong) {
  Study study;
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    study.writeHours(name, std::vector<std::string>(100000, "1 1"));
  }
  study.writeControl();
  std::vector<std::string> lines;
  Watcher watcher;
  watcher.interval = watcher.interval.zero();
  watcher.reading = [&](const std::string& line) { lines.push_back(line); };
  // A busy machine may look away for as long as one run takes.
  for (int tries = 0; tries < 100 && lines.empty(); ++tries) {
    EXPECT_EQ(runCase(study.path("korventally.inp"), watcher).sentence, "");
  }
  ASSERT_FALSE(lines.empty());
  for (const std::string& line : lines) {
    const std::size_t colon = line.rfind(": ");
    EXPECT_EQ(std::filesystem::path(line.substr(0, colon)).extension(), ".con") << line;
    EXPECT_LT(std::stoi(line.substr(colon + 2)), 100) << line;
    EXPECT_TRUE(line.ends_with(" %")) << line;
  }
}

}  // namespace
}  // namespace korventally::engine
