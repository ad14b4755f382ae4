#include "platform/headless/command_line.h"

#include <gtest/gtest.h>

#include <string>

namespace korventally::testing {
namespace {

/// "[word][word] & [word]", or "refused".
std::string shown(const char* line) {
  const auto commands = headless::readCommandLine(line);
  if (!commands) return "refused";
  std::string all;
  for (const auto& words : *commands) {
    if (!all.empty()) all += " & ";
    for (const std::string& word : words) all += '[' + word + ']';
  }
  return all;
}

TEST(CommandLine, IsReadAsTheInterpreterReadsIt) {
  const struct {
    const char* line;
    const char* words;
  } table[] = {
      {"", ""},
      {"pause", "[pause]"},
      {R"("D:\My Prog\e.exe" "C:\a b\c.inp")", R"([D:\My Prog\e.exe][C:\a b\c.inp])"},
      {R"(D:\My Prog\e.exe C:\c.inp)", R"([D:\My][Prog\e.exe][C:\c.inp])"},
      {R"(notepad "C:\100%% (a) & b^, 'c'!.lst")", R"([notepad][C:\100% (a) & b^, 'c'!.lst])"},
      {R"("C:\100% sure")", R"([C:\100 sure])"},
      {R"("C:\%TEMP%\x" "C:\5%1\%*y")", R"([C:\\x][C:\5\y])"},
      {R"("50%" & "100%")", R"([50])"},
      {R"("a" & b c)", "[a] & [b][c]"},
      {R"("a"&"b&c")", "[a] & [b&c]"},
      {R"("never closed)", "refused"},
      {"a > b", "refused"},
      {"a ^& b", "refused"},
      {R"("a" | "b")", "refused"},
  };
  for (const auto& row : table) EXPECT_EQ(shown(row.line), row.words) << row.line;
}

}  // namespace
}  // namespace korventally::testing
