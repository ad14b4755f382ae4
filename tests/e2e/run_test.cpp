#include <gtest/gtest.h>

#include <optional>

#include "tests/e2e/expected_layout.h"
#include "tests/e2e/installation.h"
#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

constexpr const wchar_t* kOddName = L"a & b 5%x% ^(c)! d', e;=";

/// A run in all its ways to end, with an engine that does as it is told.
class Run : public testing::Test {
 protected:
  bool exists(const char* name) const { return fs::exists(study.path() / name); }
  bool ownFilesAreGone() const {
    return !exists("korventally.inp") && !exists("run_korventally.bat");
  }

  Form start(const Program& program) const {
    walkShortCase(program, study);
    const Form summary = program.summary();
    summary.click("cmdRUN");
    return summary;
  }

  void expectVerdict(const Form& summary) const {
    EXPECT_TRUE(waitUntil([&] { return !summary.text("lblStatus").empty(); }, 20s));
    EXPECT_EQ(summary.text("lblStatus"), L"RUN COMPLETED");
    EXPECT_TRUE(summary.usable("cmdRUN"));
  }

  TestFolder study{kOddName};
};

TEST_F(Run, PathsArriveUnchangedAndNothingPlantedRuns) {
  const Installation installation("", kOddName);
  for (const char* planted : {"notepad.exe", "cmd.exe", "chcp.com"}) {
    fs::copy_file(installation.engine(), study.path() / planted);
  }
  writeFile(study.path() / "notepad.bat", "echo planted > \"%~dp0helper_lives\"\r\n");
  const fs::path before = fs::current_path();
  fs::current_path(study.path());  // as when the program is started from the study's folder
  const Program program(installation.path());
  fs::current_path(before);
  expectVerdict(start(program));
  EXPECT_EQ(installation.seen("argument"), (study.path() / "korventally.inp").string());
  EXPECT_TRUE(waitUntil([] { return editorShowing(L"korventally.lst") != nullptr; }));
  EXPECT_FALSE(exists("helper_lives") || exists("argument"));
  EXPECT_TRUE(ownFilesAreGone());
}

TEST_F(Run, DebugModeKeepsTheConsoleAndTheFiles) {
  const Installation installation;
  const Program program(installation.path());
  program.chooseMenu('H', 'A');
  const Form about{program.windowNamed(L" About KORVENTALLY..."), kAbout};
  about.click("chkDebug");
  EXPECT_TRUE(waitUntil([&] { return about.checked("chkDebug"); }));
  about.click("cmdOK");
  EXPECT_TRUE(waitUntil([&] { return program.wizard().usable("cmdNext1"); }));
  const Form summary = start(program);
  expectVerdict(summary);
  EXPECT_TRUE(installation.seen("batch_file").ends_with("\"\r\npause\r\n"));
  EXPECT_EQ(readFile(study.path() / "korventally.inp"), installation.seen("control_file"));
  EXPECT_TRUE(exists("run_korventally.bat"));

  // The engine's console waits in front of everything until a key is pressed.
  HWND console = GetForegroundWindow();
  EXPECT_TRUE(textOf(console).ends_with(L"cmd.exe"));
  pressKey(VK_SPACE);
  EXPECT_TRUE(waitUntil([&] { return !IsWindow(console); }));
}

TEST_F(Run, ClosingItAsksAndYesEndsTheWholeProcessTree) {
  const Installation installation("never ends");
  const Program program(installation.path());
  const Form summary = start(program);
  const fs::path helper = installation.path() / "helper_lives";
  ASSERT_TRUE(waitUntil([&] { return fs::exists(helper); }));
  std::error_code refused;
  ASSERT_FALSE(fs::remove(helper, refused));  // because the helper holds it

  const std::wstring question = L"The engine is still running. Stop it and close this window?";
  for (const int reply : {IDNO, IDYES}) {
    pressKey(VK_F4, VK_MENU);
    const Message message = waitForMessage(program, L"Warning");
    EXPECT_EQ(message.text, question);
    EXPECT_EQ(message.buttons, L"Yes No");
    answer(message, reply);
    EXPECT_TRUE(waitUntil([&] { return IsWindowVisible(summary.window()) == (reply == IDNO); }));
  }
  EXPECT_TRUE(ownFilesAreGone());
  EXPECT_TRUE(waitUntil([&] { return fs::remove(installation.engine(), refused); }, 5s));
  EXPECT_TRUE(waitUntil([&] { return fs::remove(helper, refused); }, 5s));
  EXPECT_TRUE(waitUntil([&] { return program.wizard().usable("cmdRUN"); }));
}

TEST_F(Run, CanBeRepeatedAndLeftWhileTheEditorOpens) {
  const Installation installation("takes its time");
  const Program program(installation.path());
  const Form summary = start(program);
  expectVerdict(summary);
  ASSERT_TRUE(exists("open_file.bat"));
  summary.click("cmdRUN");
  EXPECT_TRUE(waitUntil([&] { return !summary.usable("cmdRUN"); }, 3s));
  expectVerdict(summary);
  EXPECT_TRUE(waitUntil([] { return editorShowing(L"korventally.lst") != nullptr; }));
  closeEditors();  // Wine's interpreter holds the file for as long as the editor lives
  summary.click("cmdBack");
  program.wizard().click("cmdCancel");
  EXPECT_TRUE(program.ended());
  EXPECT_FALSE(exists("open_file.bat"));
  EXPECT_TRUE(exists("korventally.lst"));
}

TEST_F(Run, LeavesNothingToTheNextOneWhenItsEngineLivesOn) {
  const Installation installation("lingers");
  const Program program(installation.path());
  const Form summary = start(program);
  summary.click("chkAutoOpen");
  expectVerdict(summary);
  // While the first engine lives, its interpreter may hold the batch file: what the next run writes
  // under that name would go with it.
  EXPECT_TRUE(ownFilesAreGone());
  summary.click("cmdRUN");
  EXPECT_TRUE(waitUntil([&] { return !summary.usable("cmdRUN"); }, 3s));
  expectVerdict(summary);
  std::error_code refused;
  EXPECT_TRUE(waitUntil([&] { return fs::remove(installation.engine(), refused); }));
}

TEST_F(Run, IsOneWindowsInADirectoryUntilThatIsKilled) {
  const Installation installation("never ends");
  std::optional<Program> first(std::in_place, installation.path());
  start(*first);
  ASSERT_TRUE(waitUntil([&] { return exists("korventally.lst"); }));
  const Program second(installation.path());
  walkShortCase(second, study);
  answer(waitForMessage(second, L"Warning"), IDYES);  // the list file may be overwritten
  const Form summary = second.summary();
  summary.click("chkAutoOpen");
  summary.click("cmdRUN");
  const Message message = waitForMessage(second, L"Error");
  EXPECT_TRUE(message.text.starts_with(L"Another KorvenTally window is running a case"));
  EXPECT_NE(message.text.find(L"It is process "), std::wstring::npos);
  answer(message, IDOK);
  EXPECT_TRUE(exists("korventally.inp") && exists("korventally.lock"));

  first.reset();
  EXPECT_TRUE(waitUntil([&] { return !exists("korventally.lock"); }));
  writeFile(installation.path() / "behaviour.txt", "");
  const std::string list = (study.path() / "korventally.lst").string();
  EXPECT_TRUE(waitUntil([&] { return readFile(list).ends_with("RUN COMPLETED\r\n"); }));
  summary.click("cmdRUN");
  expectVerdict(summary);
  EXPECT_TRUE(ownFilesAreGone());
}

TEST_F(Run, SaysThatTheEngineIsMissingBeforeAnythingIsWritten) {
  const Installation installation;
  fs::remove(installation.engine());
  writeFile(study.path() / "korventally.lst", "old");
  const Program program(installation.path());
  walkShortCase(program, study);
  answer(waitForMessage(program, L"Warning"), IDYES);  // the old list file may be overwritten
  const Form summary = program.summary();
  summary.click("cmdRUN");
  const Message message = waitForMessage(program, L"Error");
  EXPECT_NE(message.text.find(installation.engine().wstring()), std::wstring::npos);
  answer(message, IDOK);
  EXPECT_TRUE(summary.usable("cmdRUN"));
  EXPECT_EQ(readFile(study.path() / "korventally.lst"), "old");
  EXPECT_TRUE(ownFilesAreGone());
}

TEST_F(Run, AsksOnceWhenTheEngineEndsWithoutAWord) {
  const Installation installation("ends at once");
  const Program program(installation.path());
  const Form summary = start(program);
  const Message message = waitForMessage(program, L"Warning");
  EXPECT_TRUE(message.text.starts_with(L"The engine has ended without writing its list file:"));
  EXPECT_EQ(message.buttons, L"Yes No");
  answer(message, IDNO);
  EXPECT_TRUE(waitUntil([&] { return summary.usable("cmdRUN") && summary.usable("cmdBack"); }));
  EXPECT_EQ(summary.text("lblStatus"), L"");
  EXPECT_TRUE(ownFilesAreGone());
}

}  // namespace
}  // namespace korventally::driver
