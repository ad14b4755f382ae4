#include "platform/headless/interpreter.h"

#include <gtest/gtest.h>

#include <string>

namespace korventally::testing {
namespace {

/// "[word][word] & > [word]", or "refused". The variable V is "a b", W is a command.
std::string shown(const std::string& text, bool delayed = false) {
  const auto variable = [](const std::string& name) -> std::optional<std::string> {
    if (name == "V") return "a b";
    return name == "W" ? std::optional("\" & evil & \"") : std::nullopt;
  };
  const auto commands = headless::readBatchFile(text, {variable, {"me.bat", "one", "2"}, delayed});
  if (!commands) return "refused";
  std::string all;
  for (const headless::Command& command : *commands) {
    all += std::string(all.empty() ? "" : " & ") + (command.redirected ? "> " : "");
    for (const std::string& word : command.words) all += '[' + word + ']';
  }
  return all;
}

TEST(Interpreter, ReadsABatchFileAsWindowsDoes) {
  const struct {
    std::string text;
    const char* commands;
    bool delayed = false;
  } table[] = {
      {"", ""},
      {"pause\r\n", "[pause]"},
      {R"("D:\My Prog\e.exe" "C:\a b\c.inp")", R"([D:\My Prog\e.exe][C:\a b\c.inp])"},
      {R"(D:\My Prog\e.exe C:\c.inp)", R"([D:\My][Prog\e.exe][C:\c.inp])"},
      {R"(notepad "C:\100%% (a) & b^, 'c'!.lst")", R"([notepad][C:\100% (a) & b^, 'c'!.lst])"},
      // Percent signs: what is undefined vanishes, and so does a single one.
      {R"("C:\100% sure" %% %%%)", R"([C:\100%])"},
      {"%% %%%", "[%][%]"},
      {R"("%U%\x" "5%1\%0" %*y %9)", R"([\x][5one\me.bat][one][2y])"},
      {R"(%V% "%V%" "%W%")", R"([a][b][a b][] & [evil] & [])"},
      {"%V:a=c% %V:*a=% %V:~2% %V:~0,-2% %V:x%", "[c][b][b][b][a][V:x]"},
      {"%U:a=c% %V: %V:%%", "[a=cV:]"},
      {"%V:=x%", "refused"},
      {"%~nx1 %~1", "[one][one]"},
      {"%~q1", "refused"},
      // Quotes, carets and separators.
      {R"("a" & b c)", "[a] & [b][c]"},
      {R"("a"&"b&c"|d)", "[a] & [b&c] & [d]"},
      {"\"not closed & \nb", "[not closed & ] & [b]"},
      {"a ^& \"^&\" ^\"b ^^c", "[a][&][^&][b ^c]"},
      {"a ^\r\nb\nc", "[a][b] & [c]"},
      {"a > \"b c\" d\n<c d", "> [a][d] & > [d]"},
      {"a >b 2>&1 c2>d & e", "> [a][c2] & [e]"},
      {"@(a & b) & c )d", "[a] & [b] & [c][)d]"},
      {"(a\nb", "refused"},
      {") a & b\nc", "[c]"},
      {":label & a\n ;,=b;c", "[b;c]"},
      {"rem a & b\nRemove & c", "[Remove] & [c]"},
      {"for %%a in (b) do c", "refused"},
      {"a\x1A"
       "b",
       "[a] & [b]"},
      {std::string("a\0b", 3), "refused"},
      // Exclamation marks count with delayed expansion only, and then carets in quotes, too.
      {R"("!V!" "^!")", R"([!V!][^!])"},
      {R"("!V!" "!U!^!" !)", R"([a b][!])", true},
      // Arguments: backslashes are special in front of a quote only.
      {R"("C:\a\" "C:\b\\" \"c\" d\\"e f)", R"([C:\a\][C:\b\]["c"][d\e f])"},
  };
  for (const auto& row : table) EXPECT_EQ(shown(row.text, row.delayed), row.commands) << row.text;
}

}  // namespace
}  // namespace korventally::testing
