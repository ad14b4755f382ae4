#include "engine/list_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "engine/fault.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

TEST(ListFile, CanBeReadWhileItGrowsAndHasNoVerdictUntilTheEnd) {
  const Study study;
  ListFile list(study.path("out.lst"));
  list.line("one");
  EXPECT_EQ(study.read("out.lst"), "one\r\n");
  list.line("two  ");
  list.line();
  EXPECT_EQ(study.read("out.lst"), "one\r\ntwo\r\n\r\n");
  list.complete();
  EXPECT_EQ(study.read("out.lst"), "one\r\ntwo\r\n\r\nRUN COMPLETED\r\n");
}

TEST(ListFile, LetsNoOtherLineBeTakenForTheVerdict) {
  const Study study;
  ListFile list(study.path("out.lst"));
  for (const char* line : {"RUN COMPLETED", "  RUN FAILED ", "RUN FAILED today"}) list.line(line);
  EXPECT_EQ(study.read("out.lst"), "RUN COMPLETED.\r\n  RUN FAILED.\r\nRUN FAILED today\r\n");
}

TEST(ListFile, TakesBackACompletionThatCouldNotBeMadeSafe) {
  const Study study;
  ListFile list(study.path("out.lst"));
  list.line("one");
  list.complete();
  EXPECT_TRUE(list.fail("It is broken."));
  EXPECT_EQ(study.read("out.lst"), "one\r\n\r\nERROR: It is broken.\r\nRUN FAILED\r\n");
}

TEST(ListFile, MayBeDeletedByOthersWhileItIsWritten) {
  const Study study;
  ListFile list(study.path("out.lst"));
  list.line("one");
  EXPECT_TRUE(std::filesystem::remove(study.path("out.lst")));
  EXPECT_NO_THROW(list.line("two"));
}

// The same for a death test and for the process of its own that it may run in: the place follows
// from the working directory, which that process inherits.
std::filesystem::path crashFile() {
  const auto here = std::hash<std::string>()(std::filesystem::current_path().string());
  return std::filesystem::temp_directory_path() / ("korventally crash " + std::to_string(here));
}

[[noreturn]] void crashWhileWriting() {
  ListFile list(crashFile());
  list.line("one");
  std::abort();
}

[[noreturn]] void endByAnExceptionThatNobodyCatches() {
  ListFile list(crashFile());
  list.line("one");
  const auto nobodyCatches = []() noexcept { InputFile file(crashFile() / "missing"); };
  nobodyCatches();
  std::abort();
}

// The sanitizers would end the program in their own way.
[[noreturn]] __attribute__((no_sanitize("address", "undefined"))) void writeWhereNothingIs() {
  ListFile list(crashFile());
  list.line("one");
  int* volatile nowhere = nullptr;
  *nowhere = 1;
  std::abort();
}

TEST(ListFileDeathTest, TellsOfACrash) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (void (*const end)() :
       {crashWhileWriting, endByAnExceptionThatNobodyCatches, writeWhereNothingIs}) {
    std::filesystem::remove(crashFile());
    EXPECT_DEATH(end(), "");
    std::ifstream file(crashFile(), std::ios::binary);
    EXPECT_EQ(
        std::string(std::istreambuf_iterator<char>(file), {}),
        "one\r\n\r\nERROR: The engine was stopped or met a fault of its own.\r\nRUN FAILED\r\n");
  }
  std::filesystem::remove(crashFile());
}

}  // namespace
}  // namespace korventally::engine
