#include "platform/headless/desktop.h"

#include <gtest/gtest.h>

#include "platform/events.h"
#include "platform/files.h"
#include "platform/later.h"
#include "tests/platform/contract/form.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

using Operation = Desktop::Operation;

/// Tests of the tests' own world: what it lets pass, no test of the program can catch.
class SimulatedDesktop : public ::testing::Test {
 protected:
  SimulatedDesktop() : desktop(std::make_unique<Desktop>()) {
    Desktop::onFailure = [this](const std::string& what) { failures.push_back(what); };
  }
  ~SimulatedDesktop() override {
    desktop.reset();
    Desktop::onFailure = asBefore;
  }

  /// Runs a batch file of that one line.
  std::unique_ptr<BatchRun> run(const std::string& line) {
    desktop->putFile("C:\\Study\\run.bat", line + "\r\n");
    return startBatchFile("C:\\Study\\run.bat", WindowStyle::kHidden, StartFolder::kCurrent)
        .value();
  }

  const std::function<void(const std::string&)> asBefore = Desktop::onFailure;
  std::vector<std::string> failures;
  std::unique_ptr<Desktop> desktop;
};

TEST_F(SimulatedDesktop, TellsOfDialogsThatNobodyExpected) {
  EXPECT_EQ(messageBox(nullptr, "text", "title", Buttons::kYesNo), Answer::kNo);
  desktop->expectMessage("text", "title");
  messageBox(nullptr, "text.", "title");
  desktop->expectMessage("text", "title", Answer::kYes);
  messageBox(nullptr, "text", "title");
  Form form;
  CommonDialog(form).ShowOpen();
  EXPECT_EQ(failures.size(), 4u);
  desktop->expectMessage("text", "title");
  EXPECT_EQ(messageBox(nullptr, "text", "title"), Answer::kOk);
  EXPECT_EQ(failures.size(), 4u);
}

TEST_F(SimulatedDesktop, TellsOfDialogsThatNeverCame) {
  desktop->expectMessage("text", "title");
  desktop->expectOpenFile("C:\\x");
  desktop->expectBrowser("C:\\x");
  desktop->expectWindow([](Window&) {});
  desktop.reset();
  EXPECT_EQ(failures.size(), 4u);
}

TEST_F(SimulatedDesktop, TellsOfWindowsThatAreLeftOpenAndClosesThem) {
  Form form;
  desktop->expectWindow([](Window& window) { EXPECT_TRUE(window.isOpen()); });
  desktop->at(1000, [] {});
  form.show();
  EXPECT_EQ(failures.size(), 1u);
  EXPECT_FALSE(form.isOpen());
  EXPECT_GE(desktop->now(), 1000u) << "what was planned might have closed it";
  click(form.button);
  EXPECT_EQ(failures.size(), 2u) << "nobody can click in a closed window";
}

TEST_F(SimulatedDesktop, TellsOfCommandsThatWereNeverMeant) {
  desktop->putFile("C:\\Prog\\korventally.exe", "");
  for (const char* line :
       {"calc", "notepad a b", "notepad", "\"C:\\Prog\\korventally.exe\"", "pause now",
        "for %%a in (b) do c", "del y & notepad \"x\"", "notepad x > y"}) {
    const std::size_t before = failures.size();
    (void)run(line);
    EXPECT_EQ(failures.size(), before + 1) << line;
  }
  EXPECT_EQ(desktop->enginesStarted(), 0);
  (void)startBatchFile("C:\\none.bat", WindowStyle::kHidden, StartFolder::kCurrent);
  EXPECT_EQ(failures.back(), "a batch file was started that is not there: C:\\none.bat");
}

TEST_F(SimulatedDesktop, RunsTheScriptedEngineUntilItEndsOrIsTerminated) {
  desktop->putFile("C:\\Prog\\korventally.exe", "");
  desktop->putFile("C:\\Study\\x.inp", "control");
  desktop->setEngine([](Desktop::Engine& engine) {
    engine.writeLine(100, "C:\\Study\\é.lst", "first");
    engine.writeLine(200, "C:\\Study\\é.lst", "last");
    engine.end(300);
  });
  const std::string line = "\"c:\\prog\\KORVENTALLY.EXE\" \"C:\\Study\\x.inp\"";
  auto processes = run(line);
  desktop->advance(150);
  EXPECT_EQ(desktop->fileBytes("C:\\Study\\é.lst"), "first\r\n");
  EXPECT_TRUE(processes->running() && desktop->enginesRunning());
  desktop->advance(200);
  EXPECT_EQ(desktop->fileBytes("C:\\Study\\é.lst"), "first\r\nlast\r\n");
  EXPECT_FALSE(processes->running() || desktop->enginesRunning());

  processes = run(line + "\r\npause");
  desktop->advance(400);
  EXPECT_TRUE(processes->running() && !desktop->enginesRunning()) << "waits for a key";

  processes = run(line);
  processes->terminate();
  desktop->removeFile("C:\\Study\\é.lst");
  desktop->advance(400);
  EXPECT_FALSE(processes->running() || desktop->fileBytes("C:\\Study\\é.lst"));

  desktop->removeFile("C:\\Prog\\korventally.exe");
  EXPECT_FALSE(run(line)->running()) << "no program, no engine";
  EXPECT_EQ(desktop->enginesStarted(), 3);
  EXPECT_EQ(failures, std::vector<std::string>{});
}

TEST_F(SimulatedDesktop, FailsTheCallsThatItIsToldTo) {
  const Error busy{ErrorKind::kBusy, 32, "In use.", ""};
  desktop->makeFolder("C:\\Study");
  desktop->failCall(Operation::kWrite, 2, busy);
  desktop->failCall(Operation::kWrite, 4, busy, true);
  std::string outcome;
  for (int i = 0; i < 6; ++i) {
    outcome += writeTextFile("C:\\Study\\a.txt", {}) ? '+' : '-';
  }
  EXPECT_EQ(outcome, "+-+---");
  EXPECT_EQ(desktop->calls(Operation::kWrite), 6);
  EXPECT_EQ(writeTextFile("C:\\Study\\a.txt", {}).error().path, "C:\\Study\\a.txt");
  EXPECT_TRUE(deleteFile("C:\\Study\\a.txt"));
}

TEST_F(SimulatedDesktop, LocksFilesForATime) {
  desktop->putFile("C:\\Study\\a.txt", "bytes");
  desktop->lockFile("C:\\Study\\a.txt", 100);
  desktop->advance(95);
  EXPECT_EQ(deleteFile("C:\\Study\\a.txt").error().kind, ErrorKind::kBusy);
  EXPECT_EQ(writeTextFile("C:\\Study\\a.txt", {}).error().kind, ErrorKind::kBusy);
  EXPECT_FALSE(openForReading("C:\\Study\\a.txt"));
  desktop->advance(5);
  EXPECT_TRUE(openForReading("C:\\Study\\a.txt"));
}

TEST_F(SimulatedDesktop, NamesFilesAsWindowsDoes) {
  desktop->putFile("C:\\Study\\Sub\\a.txt", "bytes");
  for (const char* name : {"C:\\Study\\Sub\\a.txt", "c:\\STUDY\\sub\\A.TXT", "C:/Study/Sub/a.txt",
                           "\\Study\\Sub\\a.txt", "Study\\.\\Sub\\..\\Sub\\\\a.txt. "}) {
    EXPECT_EQ(desktop->fileBytes(name), "bytes") << name;
  }
  EXPECT_EQ(desktop->list("C:\\"), (std::vector<std::string>{"KorvenTally\\", "Study\\"}));
  EXPECT_EQ(desktop->list("C:\\Study"), std::vector<std::string>{"Sub\\"});
  EXPECT_FALSE(fileExists("D:\\Study\\Sub\\a.txt"));
  desktop->makeFolder("D:\\");
  EXPECT_FALSE(folderListsEntries("D:\\")) << "an empty drive lists nothing";
  EXPECT_EQ(openForReading("\\\\server\\share\\x").error().code, 53);
}

TEST_F(SimulatedDesktop, CarriesWhatIsPlannedAcrossEveryWrapOfItsTicks) {
  for (const std::uint32_t start : {0x7FFFFFF0u, 0xFFFFFFF0u}) {
    desktop->setTicks(start);
    std::string done;
    runLater("late", 100, [&] { done += "late"; });
    runLater("soon", 50, [&] { done += "soon "; });
    desktop->at(45, [&] { done += "world "; });
    desktop->advance(45);
    EXPECT_EQ(done, "world ");
    finishLater();
    EXPECT_EQ(done, "world soon late");
    EXPECT_EQ(desktop->now() - start, 100u);
  }
}

TEST_F(SimulatedDesktop, BringsNothingOverFromTheLastOne) {
  runLater("left behind", 0, [] { ADD_FAILURE() << "of another test"; });
  desktop->putFile("C:\\a.txt", "");
  desktop.reset();
  Desktop fresh;
  fresh.advance(100);
  EXPECT_FALSE(fresh.fileBytes("C:\\a.txt"));
}

TEST_F(SimulatedDesktop, KnowsThePriorityOfTheProgram) {
  {
    const BelowNormalPriority outer, inner;
    EXPECT_TRUE(desktop->belowNormalPriority());
  }
  EXPECT_FALSE(desktop->belowNormalPriority());
}

TEST_F(SimulatedDesktop, EndsAWaitForWhatNeverComes) {
  EXPECT_THROW(desktop->advance(0xFFFFFFFF), std::runtime_error);
}

}  // namespace
}  // namespace korventally::testing
