#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "case/basModule.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/win32/system/text.h"
#include "run/batch_file.h"

namespace korventally::testing {
namespace {

namespace fs = std::filesystem;
using win32::toWide;
using Names = std::vector<std::string>;

/// The real interpreter with a stand-in for the engine. A name that is read as more than a name
/// starts another program, the canary, which leaves a file. Wine reads batch files in another code
/// page than Windows: letters with accents cannot be tried there.
class RealInterpreter : public ::testing::Test {
 protected:
  RealInterpreter() {
    fs::create_directories(canary.parent_path());
    fs::copy_file(recorder, canary);
    SetEnvironmentVariableW(L"canary", (L"\" & \"" + canary.wstring() + L"\" & \"").c_str());
  }

  ~RealInterpreter() override {
    SetEnvironmentVariableW(L"canary", nullptr);
    std::error_code ignored;
    fs::remove_all(root, ignored);
  }

  /// The arguments that a stand-in was started with, each with a zero behind it; none if it was
  /// not.
  static std::string givenTo(const fs::path& program) {
    std::ifstream file(fs::path(program.wstring() + L".arguments"), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    return win32::fromWide({reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / 2});
  }

  void run(const std::string& batch, const std::vector<std::string>& lines) {
    ASSERT_TRUE(writeTextFile(batch, lines));
    auto started = startBatchFile(batch, WindowStyle::kHidden, StartFolder::kCurrent);
    ASSERT_TRUE(started);
    for (int looks = 0; looks < 4000 && started.value()->running(); ++looks) Sleep(5);
    EXPECT_FALSE(started.value()->running()) << batch;
  }

  /// One batch file with the lines of a run in each of these folders.
  void expectToArrive(const Names& names, const std::string& batch) {
    std::vector<std::string> lines;
    AnalysisCase theCase;
    for (const std::string& name : names) {
      theCase.WorkDir = folder + name + "\\";
      fs::create_directory(toWide(folder + name));
      fs::copy_file(recorder, toWide(theCase.WorkDir + "korventally.exe"));
      lines.push_back(batchFileLines(theCase, theCase.WorkDir + "korventally.exe").front());
    }
    run(batch, lines);
    for (const std::string& name : names) {
      const std::string home = folder + name;
      EXPECT_EQ(givenTo(toWide(home + "\\korventally.exe")), home + "\\korventally.inp" + '\0');
      fs::remove_all(toWide(home));
    }
    EXPECT_EQ(givenTo(canary), "") << names.front() << " ... was read as a command";
  }

  const fs::path root =
      fs::temp_directory_path() / ("KorvenTally names " + std::to_string(GetCurrentProcessId()));
  const fs::path recorder = fs::path(toWide(installationDirectory())) / "argument_recorder.exe";
  const std::string folder = win32::fromWide(root.wstring()) + "\\";
  const fs::path canary = root / "cage" / "canary.exe";
};

/// What stands in names, in any order.
Names randomNames(std::size_t count) {
  const Names pieces = {"%canary%", "%", "&", "^", "(", ")", "!", "'", "`", ",", ";", "=",     "@",
                        "~",        "#", "$", "[", "]", "{", "}", "+", "-", ".", " ", "canary"};
  std::mt19937 random(20261124);
  Names names;
  while (names.size() < count) {
    std::string name = "a";  // Windows drops dots and blanks at the end of a name
    for (auto more = 1 + random() % 8; more > 0; --more) {
      name.insert(0, pieces[random() % pieces.size()]);
    }
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

TEST_F(RealInterpreter, GivesTheEngineExactlyTheControlFile) {
  for (const std::string name : {"a&canary&b", "^&canary", "(canary)", "!canary!", "%1%~0", "100%",
                                 "a;b,c=d @'`", "%none%", "%"}) {
    expectToArrive({name}, folder + name + "\\run_korventally.bat");
  }
  // Wine expands the value of a variable, too, Windows does not: from a folder that is called like
  // a variable no batch file can be started there.
  Names names = randomNames(86);
  for (const char* name : {"%canary%", "50% %canary%", "%%canary%%", "%canary", "canary%"}) {
    names.emplace_back(name);
  }
  expectToArrive(names, folder + "all.bat");
  run(folder + "sing.bat", {"\"none%canary%\""});
  EXPECT_NE(givenTo(canary), "") << "the canary does not sing: nothing was shown";
}

}  // namespace
}  // namespace korventally::testing
