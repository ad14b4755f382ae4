// A disk that takes no more, played by the limit that POSIX systems set on the size of a file:
// what lies within the limit can be written over, and nothing can be added behind it.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <string>
#include <vector>

#include "engine/fault.h"
#include "engine/list_file.h"
#include "tests/engine/study.h"

namespace korventally::engine {
namespace {

class Limit {
 public:
  explicit Limit(rlim_t bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~Limit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_;
};

// Every length of disk from nothing to the whole list file: the verdict is there whenever it fits
// at all, it is never "RUN COMPLETED", and the program says so every time.
TEST(FullDisk, NeverCompletesAndSaysSoWhereverTheSpaceEnds) {
  Study study;
  ASSERT_EQ(study.run().sentence, "");
  const std::size_t whole = study.read("out.lst").size();
  const std::size_t control = study.read("korventally.inp").size();
  study.writeControl();
  const NativePath controlFile = study.path("korventally.inp");
  ASSERT_GT(whole, control);
  for (std::size_t bytes = 0; bytes < whole; bytes += bytes + 20 < whole ? 61 : 1) {
    SCOPED_TRACE(bytes);
    Result result;
    {
      const Limit limit(bytes);
      result = runCase(controlFile);
    }
    EXPECT_NE(result.sentence.find("cannot be written: "), std::string::npos) << result.sentence;
    const std::string list = study.read("out.lst");
    EXPECT_EQ(list.find("RUN COMPLETED"), std::string::npos);
    const bool told = list.ends_with("\r\nRUN FAILED\r\n");
    EXPECT_EQ(told, result.outcome == Outcome::kFailed);
    if (bytes > 400) {
      EXPECT_TRUE(told) << list;
    }
  }
}

// The table of every exceedance is larger than the page, and that than the list file: there is room
// for some of them only.
TEST(FullDisk, CostsWhatStandsBesideTheListFileAndNotTheVerdict) {
  Study study;
  study.line(4) = "3000";
  study.line(14) = "1";
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    study.writeHours(name, std::vector<std::string>(3000, "1E-5 9E-6"));
  }
  study.writeControl();
  const struct {
    rlim_t bytes;
    bool page, table;
  } rows[] = {{65540, false, false}, {200000, true, false}, {1000000, true, true}};
  for (const auto& row : rows) {
    {
      const Limit limit(row.bytes);
      EXPECT_EQ(runCase(study.path("korventally.inp")).outcome, Outcome::kCompleted);
    }
    const std::string list = study.read("out.lst");
    expectSays(list, {"Exceedances:                  6,000 (", "\r\nRUN COMPLETED"});
    EXPECT_EQ(list.find("No table of every exceedance was written: The") == list.npos, row.table);
    EXPECT_EQ(list.find("No page was written: The") == list.npos, row.page);
    EXPECT_EQ(std::filesystem::exists(study.path("out.lst.csv")), row.table);
    EXPECT_EQ(std::filesystem::exists(study.path("out.lst.html")), row.page);
  }
}

}  // namespace
}  // namespace korventally::engine
