#include "run/verdict.h"

#include <gtest/gtest.h>

#include "platform/headless/desktop.h"

namespace korventally::testing {
namespace {

constexpr auto kCompleted = Verdict::kCompleted;
constexpr auto kFailed = Verdict::kFailed;

TEST(VerdictScanner, TakesTheLastWholeLineThatIsAVerdict) {
  const std::string longLine(1'000'000, 'x');
  const struct {
    std::string bytes;
    std::optional<Verdict> verdict;
  } rows[] = {
      {"RUN COMPLETED\r\n", kCompleted},
      {"listing\r\n   RUN FAILED  \r\n", kFailed},
      {"RUN COMPLETED", kCompleted},
      {"a\nRUN COMPLETED\nb\n", kCompleted},
      {"a\rRUN FAILED\rb\r", kFailed},
      {"RUN FAILED\r\nRUN COMPLETED\r\n", kCompleted},
      {"RUN COMPLETED\r\nRUN FAILED\r\n", kFailed},
      {"RUN FAILED\r\n\r\nRUN COMPLETED.\r\n", kFailed},
      {longLine + "\r\nRUN COMPLETED\r\n" + longLine, kCompleted},
      {"", std::nullopt},
      {"run completed\r\n", std::nullopt},
      {"RUN COMPLETED.\r\n", std::nullopt},
      {"\tRUN COMPLETED\r\n", std::nullopt},
      {"RUN COMPLETED\t\r\n", std::nullopt},
      {"RUN  COMPLETED\r\n", std::nullopt},
      {"THE RUN COMPLETED\r\n", std::nullopt},
      {"RUN COMPLETED IN PART\r\n", std::nullopt},
      {"RUN\r\nCOMPLETED\r\n", std::nullopt},
      {std::string("RUN COMPLETED\0\r\n", 16), std::nullopt},
      {std::string("R\0U\0N\0 \0F\0A\0I\0L\0E\0D\0\r\0\n\0", 24), std::nullopt},
      {longLine + "RUN COMPLETED\r\n", std::nullopt},
      {"THIRTEEN CHARRUN COMPLETED\r\n", std::nullopt},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.bytes.substr(0, 40));
    VerdictScanner whole;
    whole.feed(row.bytes);
    EXPECT_EQ(whole.verdict(), row.verdict);
    // However the file is cut into pieces, the verdict is the same.
    VerdictScanner bytewise;
    for (const char c : row.bytes) bytewise.feed({&c, 1});
    EXPECT_EQ(bytewise.verdict(), row.verdict);
  }
}

TEST(VerdictScanner, FindsItWhereverItStandsInALargePieceAndWhereverThatIsCut) {
  const std::string after =
      "\nRUN\rRUN  FAILED\nA RUN FAILED\n RUN FAILED x\n" + std::string(300, 'R');
  for (std::size_t before = 240; before < 275; ++before) {
    const std::string bytes = "\n" + std::string(before, 'U') + "\r  RUN COMPLETED  " + after;
    for (std::size_t cut = before; cut < before + 60; ++cut) {
      VerdictScanner scanner;
      scanner.feed(std::string_view(bytes).substr(0, cut));
      scanner.feed(std::string_view(bytes).substr(cut));
      ASSERT_EQ(scanner.verdict(), kCompleted) << before << " bytes before, cut at " << cut;
    }
  }
}

TEST(ReadVerdict, NeedsAFileThatCanBeReadToItsEnd) {
  Desktop desktop;
  desktop.makeFolder("C:\\S\\");
  const auto read = [](const std::string& path = "C:\\S\\a.lst") { return readVerdict(path); };
  std::stop_source stopped;
  stopped.request_stop();
  EXPECT_FALSE(read()) << "missing";
  EXPECT_FALSE(read("C:\\S\\")) << "a folder";
  desktop.putFile("C:\\S\\a.lst", std::string(600'000, '\n') + "RUN COMPLETED\n");
  EXPECT_EQ(read().value(), kCompleted);
  EXPECT_EQ(readVerdict("C:\\S\\a.lst", stopped.get_token()).value(), std::nullopt);
  desktop.failCall(Desktop::Operation::kRead, desktop.calls(Desktop::Operation::kRead) + 2,
                   {ErrorKind::kOther, 1117, "I/O error.", ""});
  EXPECT_FALSE(read()) << "breaks off";
  desktop.lockFile("C:\\S\\a.lst", 1000);
  EXPECT_FALSE(read()) << "locked";
}

TEST(ReadVerdict, ReadsAsFarAsTheFileWentWhenItBegan) {
  Desktop desktop;
  const std::string list = "C:\\S\\a.lst";
  desktop.putFile(list, std::string(600'000, '\n') + "RUN FAILED\n");
  desktop.beforeEach(Desktop::Operation::kRead, [&] {
    ASSERT_LT(desktop.calls(Desktop::Operation::kRead), 10) << "the reading never ends";
    desktop.appendFile(list, std::string(400'000, '\n') + "RUN COMPLETED\n");
  });
  EXPECT_EQ(readVerdict(list).value(), kFailed);
  desktop.beforeEach(Desktop::Operation::kRead, [] {});
  EXPECT_EQ(readVerdict(list).value(), kCompleted) << "the rest is for the next look";
}

}  // namespace
}  // namespace korventally::testing
