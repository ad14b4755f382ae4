#include "run/batch_file.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

#include "case/ModUtilities.h"
#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "platform/headless/interpreter.h"

namespace korventally::testing {
namespace {

using Words = std::vector<std::string>;

/// What names of folders may hold, what only looks like it, and what the code page lacks.
const Words kPieces = {"%", "&", "^", "(", ")", "!", "'",  "`",  ",",  ";",  "=",  "@",
                       "~", "#", "$", "[", "]", "{", "}",  "+",  "-",  ".",  " ",  "a",
                       "1", "é", "Ä", "€", "“", "ā", "＂", "％", "＆", "＾", "！", "日"};

class BatchFiles : public ::testing::Test {
 protected:
  /// Every variable that a name might spell holds a command.
  const headless::Surroundings hostile{
      [](const std::string&) { return "\" & evil & \""; }, {"me.bat", "\" & evil & \""}, false};

  /// Whether the lines, in the bytes of the file, are read back as these words of one command.
  bool arrives(const Words& lines, const Words& words) {
    std::string bytes;
    for (const std::string& line : lines) bytes += toAnsi(line).value() + "\r\n";
    const auto commands = headless::readBatchFile(fromAnsi(bytes), hostile);
    return commands && commands->size() == 1 && !commands->front().redirected &&
           commands->front().words == words;
  }

  /// Folders of this name come through to the engine or the editor, or nothing is written and
  /// somebody is told why.
  bool holds(const std::string& name, bool atRun) {
    theCase.WorkDir = "C:\\" + name + "\\";
    const std::string program = atRun ? "D:\\" + name + "\\korventally.exe" : "notepad";
    const Words lines =
        atRun ? batchFileLines(theCase, program) : editorBatchLines(theCase.WorkDir, name);
    if (toAnsi(name)) {
      return arrives(lines, {program, theCase.WorkDir + (atRun ? "korventally.inp" : name)});
    }
    ++refused;
    const Status written = writeTextFile("C:\\refused.bat", lines);
    return !written && !written.error().text.empty() && !fileExists("C:\\refused.bat");
  }

  bool holds(const std::string& name) { return holds(name, true) && holds(name, false); }

  Desktop desktop;
  AnalysisCase theCase;
  int refused = 0;
};

TEST_F(BatchFiles, AreOneCommandForEveryShortName) {
  int names = 0;
  for (const std::string& first : kPieces) {
    ASSERT_TRUE(holds(first)) << first;
    for (const std::string& second : kPieces) {
      ASSERT_TRUE(holds(first + second)) << first << second;
      for (const std::string& third : kPieces) {
        ASSERT_TRUE(holds(first + second + third)) << first << second << third;
        ++names;
      }
    }
  }
  std::cout << names << " names of three characters\n";
  EXPECT_GT(refused, 1000);
}

TEST_F(BatchFiles, AreOneCommandForAnyLongName) {
#ifdef KORVENTALLY_SANITIZE
  constexpr int kNames = 20'000;
#else
  constexpr int kNames = 1'000'000;
#endif
  const char* const given = std::getenv("KORVENTALLY_SEED");
  const unsigned seed =
      given != nullptr ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
  std::cout << kNames << " names from seed " << seed << "\n";
  std::minstd_rand random(seed);
  for (int i = 0; i < kNames; ++i) {
    std::string name;
    // The last pieces are those that are refused: few names have one.
    const std::size_t pieces = kPieces.size() - (i % 8 == 0 ? 0 : 7);
    for (auto length = 4 + random() % 16; length > 0; --length) name += kPieces[random() % pieces];
    ASSERT_TRUE(holds(name, i % 2 == 0)) << "KORVENTALLY_SEED=" << seed << ": " << name;
  }
}

TEST_F(BatchFiles, AreNoCommandWhenAPercentSignStandsAlone) {
  EXPECT_FALSE(arrives({"\"C:\\%a%\\e.exe\" \"C:\\b\""}, {"C:\\%a%\\e.exe", "C:\\b"}));
}

}  // namespace
}  // namespace korventally::testing
