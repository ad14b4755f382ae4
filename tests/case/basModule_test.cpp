#include "case/basModule.h"

#include <gtest/gtest.h>

#include "platform/headless/desktop.h"

namespace korventally::testing {
namespace {

class StartUp : public ::testing::Test {
 protected:
  StartUp() {
    desktop.makeFolder("D:\\Prog\\");
    desktop.setInstallationDirectory("D:\\Prog");
    basModule::analysisCase = AnalysisCase{};
  }

  std::string directoryFrom(const std::string& bytes) {
    desktop.putFile("D:\\Prog\\Movrix.cfg", bytes);
    return initialiseCase();
  }

  Desktop desktop;
};

TEST_F(StartUp, TakesTheDefaultDirectoryFromTheFirstLine) {
  const struct {
    std::string bytes, directory;
  } rows[] = {
      {"anything= C:\\Study\\Case1\r\n", "C:\\Study\\Case1"},
      {"key=C:\\Runs\\A=the rest", "C:\\Runs\\A"},
      {" key = D:\\Work  \r\n", "D:\\Work"},
      {"key=\tC:\\Tab\n", "\tC:\\Tab"},
      {"key=\r\nkey=C:\\Second", ""},
      {"C:\\NoEquals\r\nkey=C:\\Second", ""},
      {"", ""},
      {"key=C:\\M\xFCnchen", "C:\\München"},
      {std::string("k=C:\\a\0b", 8), ""},
      {std::string("\xFF\xFEk\0=\0C\0:\0", 10), ""},
      {"key=" + std::string(5'000'000, 'x'), ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(directoryFrom(row.bytes), row.directory) << row.bytes.substr(0, 40);
  }
}

TEST_F(StartUp, OpensWithoutAConfigurationThatItCanRead) {
  EXPECT_EQ(initialiseCase(), "") << "missing";
  desktop.makeFolder("D:\\Prog\\Movrix.cfg\\");
  EXPECT_EQ(initialiseCase(), "") << "a folder";
  desktop.removeFile("D:\\Prog\\Movrix.cfg");
  desktop.putFile("D:\\Prog\\Movrix.cfg", "k=C:\\A", Desktop::Attribute::kHidden);
  EXPECT_EQ(initialiseCase(), "") << "hidden";
  desktop.putFile("D:\\Prog\\Movrix.cfg", "k=C:\\A");
  desktop.lockFile("D:\\Prog\\Movrix.cfg", 1000);
  EXPECT_EQ(initialiseCase(), "") << "locked";
  desktop.advance(2000);
  desktop.failCall(Desktop::Operation::kRead, desktop.calls(Desktop::Operation::kRead) + 1,
                   {ErrorKind::kOther, 23, "CRC error.", ""});
  EXPECT_EQ(initialiseCase(), "") << "damaged";
}

TEST_F(StartUp, NamesEveryGroup) {
  basModule::analysisCase.GroupConcFiles[7] = "left over";
  initialiseCase();
  const auto& names = basModule::analysisCase.GroupNames;
  EXPECT_EQ(names[0], "");
  EXPECT_EQ(names[1], "ALL_SOURCES");
  EXPECT_EQ(names[2], "FACILITY");
  EXPECT_EQ(names[3], "OTHER_1");
  EXPECT_EQ(names[12], "OTHER_10");
  EXPECT_EQ(names[50], "OTHER_48");
  EXPECT_EQ(basModule::analysisCase.GroupConcFiles[7], "");
}

}  // namespace
}  // namespace korventally::testing
