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
  ListFile list(study.Path("out.lst"));
  list.Line("one");
  EXPECT_EQ(study.Read("out.lst"), "one\r\n");
  list.Line("two  ");
  list.Line();
  EXPECT_EQ(study.Read("out.lst"), "one\r\ntwo\r\n\r\n");
  list.Complete();
  EXPECT_EQ(study.Read("out.lst"), "one\r\ntwo\r\n\r\nRUN COMPLETED\r\n");
}

TEST(ListFile, TakesBackACompletionThatCouldNotBeMadeSafe) {
  const Study study;
  ListFile list(study.Path("out.lst"));
  list.Line("one");
  list.Complete();
  EXPECT_TRUE(list.Fail("It is broken."));
  EXPECT_EQ(study.Read("out.lst"), "one\r\n\r\nERROR: It is broken.\r\nRUN FAILED\r\n");
}

TEST(ListFile, MayBeDeletedByOthersWhileItIsWritten) {
  const Study study;
  ListFile list(study.Path("out.lst"));
  list.Line("one");
  EXPECT_TRUE(std::filesystem::remove(study.Path("out.lst")));
  EXPECT_NO_THROW(list.Line("two"));
}

// The same for a death test and for the process of its own that it may run in: the place follows
// from the working directory, which that process inherits.
std::filesystem::path CrashFile() {
  const auto here = std::hash<std::string>()(std::filesystem::current_path().string());
  return std::filesystem::temp_directory_path() / ("korventally crash " + std::to_string(here));
}

[[noreturn]] void CrashWhileWriting() {
  ListFile list(CrashFile());
  list.Line("one");
  std::abort();
}

[[noreturn]] void EndByAnExceptionThatNobodyCatches() {
  ListFile list(CrashFile());
  list.Line("one");
  const auto nobody_catches = []() noexcept { InputFile file(CrashFile() / "missing"); };
  nobody_catches();
  std::abort();
}

// The sanitizers would end the program in their own way.
[[noreturn]] __attribute__((no_sanitize("address", "undefined"))) void WriteWhereNothingIs() {
  ListFile list(CrashFile());
  list.Line("one");
  int* volatile nowhere = nullptr;
  *nowhere = 1;
  std::abort();
}

TEST(ListFileDeathTest, TellsOfACrash) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (void (*const end)() :
       {CrashWhileWriting, EndByAnExceptionThatNobodyCatches, WriteWhereNothingIs}) {
    std::filesystem::remove(CrashFile());
    EXPECT_DEATH(end(), "");
    std::ifstream file(CrashFile(), std::ios::binary);
    EXPECT_EQ(
        std::string(std::istreambuf_iterator<char>(file), {}),
        "one\r\n\r\nERROR: The engine was stopped or met a fault of its own.\r\nRUN FAILED\r\n");
  }
  std::filesystem::remove(CrashFile());
}

}  // namespace
}  // namespace korventally::engine
