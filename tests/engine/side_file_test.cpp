// What stands beside the list file, table and page alike, and what they do to files of their names.
#include "engine/side_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "engine/page/page.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

const struct {
  const char* ending;
  std::string whole, unfinished, rest;  // its mark
  const char *line, *warning;           // in the list file
} kFiles[] = {
    {".csv", "Receptor ID", "Unfinished ", ",X,Y,First hour,Valid hours,Total (ug/m**3)",
     "Every exceedance: ", "No table of every exceedance was written: The file"},
    {".html", "<!DOCTYPE html>", "Unfinished page",
     "<!-- KorvenTally: what a run came to, in pictures -->\n",
     "In pictures: ", "No page was written: The file"},
};

std::string nameOf(const char* ending) { return "out.lst" + std::string(ending); }

TEST(SideFile, ReplacesWhatAnEarlierRunLeft) {
  for (const auto& file : kFiles) {
    const std::string whole = file.whole + file.rest, cut = file.unfinished + file.rest;
    for (const std::string& old : {whole + "old", cut + "old", cut.substr(0, 7), std::string()}) {
      const Study study;
      study.write(nameOf(file.ending), old);
      expectSays(completedList(study),
                 {"WARNINGS\r\n  None.\r\n", file.line, study.text(nameOf(file.ending))});
      const std::string now = study.read(nameOf(file.ending));
      EXPECT_TRUE(now.starts_with(whole) && !now.ends_with("old")) << old;
    }
  }
}

TEST(SideFile, LeavesAForeignFileAloneAndWarns) {
  for (const auto& file : kFiles) {
    for (const std::string& foreign :
         {std::string("my notes\r\n"), file.whole, file.whole + "\r\n<!-- mine -->",
          std::string("Unfinished work"), file.whole.substr(0, 1)}) {
      const Study study;
      study.write(nameOf(file.ending), foreign);
      const std::string list = completedList(study);
      expectSays(list, {file.warning, "is not from an"});
      expectSilent(list, file.line);
      EXPECT_EQ(study.read(nameOf(file.ending)), foreign);
    }
    const Study study;
    std::filesystem::create_directory(study.path(nameOf(file.ending)));
    expectSays(completedList(study), {file.warning});
    EXPECT_TRUE(std::filesystem::is_directory(study.path(nameOf(file.ending))));
  }
}

// Even one of an earlier run, when the case names it.
TEST(SideFile, LeavesTheFilesOfTheCaseAlone) {
  for (const auto& file : kFiles) {
    const std::string name = nameOf(file.ending), old = file.whole + file.rest + "\r\n";
    for (const std::size_t line : {6u, 10u, 17u}) {
      Study study;
      study.line(line) = study.text(name);
      study.write(name, old);
      EXPECT_EQ(study.run().outcome, Outcome::kFailed);
      EXPECT_EQ(study.read(name), old);
    }
    Study study;
    study.line(10) = study.text(name);
    std::filesystem::copy_file(study.path("group_3.con"), study.path(name));
    expectSays(completedList(study), {file.warning, "is also named in line 10 of the"});
    EXPECT_EQ(study.read(name), study.read("group_3.con"));
    // The control file itself.
    const std::string control = "out2.lst" + std::string(file.ending);
    study.line(1) = study.text("out2.lst");
    study.line(10) = study.text("group_3.con");
    study.writeControl();
    std::filesystem::rename(study.path("korventally.inp"), study.path(control));
    EXPECT_EQ(runCase(study.path(control)).outcome, Outcome::kCompleted);
    expectSays(study.read("out2.lst"), {"is also the control file; it was left as it"});
    EXPECT_NE(study.read(control), "");
  }
}

TEST(SideFile, IsGoneAfterARunThatFails) {
  for (const std::size_t line : {3u, 6u, 17u, 20u}) {
    Study study;
    completedList(study);
    for (const auto& file : kFiles) {
      ASSERT_TRUE(std::filesystem::exists(study.path(nameOf(file.ending))));
    }
    study.line(line) = "nothing of use";
    EXPECT_EQ(study.run().outcome, Outcome::kFailed);
    for (const auto& file : kFiles) {
      EXPECT_FALSE(std::filesystem::exists(study.path(nameOf(file.ending)))) << file.ending;
    }
  }
}

#ifdef _WIN32
// A spreadsheet has the table open, which elsewhere keeps nobody from replacing it.
TEST(SideFile, IsLeftAsItIsWhileAnotherProgramHoldsIt) {
  for (const auto& file : kFiles) {
    Study study;
    completedList(study);
    const std::string old = study.read(nameOf(file.ending));
    study.line(15) = "11.0";  // no exceedance is left
    const std::ifstream holder(study.path(nameOf(file.ending)));
    const std::string list = completedList(study);
    expectSays(warningsIn(list), {file.warning, nameOf(file.ending), "(error 32)"});
    expectSilent(list, file.line);
    EXPECT_EQ(study.read(nameOf(file.ending)), old);
  }
}
#endif

TEST(SideFile, SaysAtItsBeginningUntilTheEndThatItIsUnfinished) {
  const Study study;
  for (const bool verdict : {false, true}) {
    {
      SideFile file(study.text("page"), "", kPageMark);
      file.begin("A");
      file.add("B");
      EXPECT_EQ(study.read("page"), kFiles[1].unfinished + kFiles[1].rest + "A");
      file.finish();
      EXPECT_EQ(study.read("page"), kFiles[1].whole + kFiles[1].rest + "AB");
      EXPECT_EQ(file.problem(), "");
      if (verdict) file.keep();
    }
    // Without a verdict even a whole file goes.
    EXPECT_EQ(std::filesystem::exists(study.path("page")), verdict);
  }
}

}  // namespace
}  // namespace korventally::engine
