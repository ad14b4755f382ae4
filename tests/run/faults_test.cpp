#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "platform/later.h"
#include "run/folder_claim.h"
#include "run/frmRunSummary.h"
#include "tests/faults/watch.h"
#include "tests/study.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

using Operation = Desktop::Operation;

/// Runs a case in a working directory that is not as it should be.
class FaultyRun : public Study {
 public:
  /// One run, and what was said meanwhile.
  struct Outcome {
    std::vector<std::string> messages;
    std::string status;
  };

  Outcome run() {
    Outcome outcome;
    std::vector<std::string> violations;
    Watch watch(desktop, violations);
    watch.sawNothing();  // the wizard has asked about the list file
    desktop.answerMessages([&](const std::string& text, Buttons buttons) {
      watch.messageShown(text, buttons != Buttons::kOk, false);
      return buttons == Buttons::kOk ? Answer::kOk : Answer::kNo;
    });
    inSummary([&](frmRunSummary& s) {
      watch.runPressed();
      click(s.cmdRUN);
      watch.runReturned(s);
      outcome.status = s.lblStatus.text();
    });
    finishLater();
    watch.end();
    EXPECT_EQ(violations, std::vector<std::string>{});
    outcome.messages = watch.messages();
    return outcome;
  }

  void leaveAnOldRun() {
    desktop.putFile(kStudy + "korventally.lst", "RUN COMPLETED\r\n");
    desktop.putFile(kStudy + "run_korventally.bat", "old");
    desktop.putFile(kStudy + "korventally.inp", "old");
  }
};

TEST(Faults, NothingMayStandUnderTheNameOfTheListFile) {
  for (const bool folder : {true, false}) {
    FaultyRun run;
    const std::string list = kStudy + "korventally.lst";
    if (folder) run.desktop.makeFolder(list + "\\");
    if (!folder) run.desktop.putFile(list, "RUN COMPLETED", Desktop::Attribute::kHidden);
    const FaultyRun::Outcome outcome = run.run();
    EXPECT_EQ(run.desktop.enginesStarted(), 0);
    ASSERT_EQ(outcome.messages.size(), 1u);
    const std::string what = "The list file of an earlier run could not be deleted:\n";
    EXPECT_TRUE(outcome.messages[0].starts_with(what + list)) << outcome.messages[0];
  }
}

TEST(Faults, WhatStandsThereForAMomentOnlyIsWaitedFor) {
  FaultyRun run;
  const std::string list = kStudy + "korventally.lst";
  run.desktop.putFile(list, "RUN FAILED", Desktop::Attribute::kHidden);
  run.desktop.at(1000, [&] { run.desktop.removeFile(list); });
  const FaultyRun::Outcome outcome = run.run();
  EXPECT_EQ(outcome.status, "RUN COMPLETED");
  EXPECT_TRUE(outcome.messages.empty());
}

/// The directory goes at some moment of the run and comes back later, or not while it lasts. The
/// engine goes on where the files are.
TEST(Faults, AWorkingDirectoryThatGoesAndComesBackCostsNoVerdict) {
  constexpr std::uint32_t kNever = 300'000;
  const std::string reason = "\n\nThe network path was not found. (53)\n\n";
  const std::string list = kStudy + "korventally.lst" + reason;
  const std::string batch = kStudy + "run_korventally.bat" + reason;
  const std::string advice = "It is deleted when the working directory can be reached again";
  const std::string what = "A file of the run could not be deleted:\n";
  const std::string left = what + kStudy + "korventally.inp" + reason + advice;
  const std::string leftBatch = what + batch + advice;
  const std::string question = "The list file is out of reach:\n" + list + "Keep waiting for it?";
  const struct {
    std::uint32_t goes, comes;
    std::string status;
    std::vector<std::string> messages;  ///< how each begins
  } rows[] = {
      // Before anything is written; after the control file.
      {0, 1000, "RUN COMPLETED", {}},
      {0,
       kNever,
       "",
       {"The working directory could not be reserved for this run:\n" + kStudy +
        "korventally.lock" + reason}},
      {30, 1000, "RUN COMPLETED", {}},
      {30, kNever, "", {"The batch file could not be written:\n" + batch, left}},
      // While the list file is awaited; between two looks; after its verdict.
      {200, 20'000, "RUN COMPLETED", {}},
      {200, kNever, "", {question, left, leftBatch}},
      {2000, 20'000, "RUN COMPLETED", {}},
      {2000, kNever, "", {question, left, leftBatch}},
      {4140, 5000, "RUN COMPLETED", {}},
      {4140, kNever, "RUN COMPLETED", {left, leftBatch, "The list file could not be opened"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(::testing::Message() << "goes at " << row.goes << ", comes at " << row.comes);
    FaultyRun run;
    run.leaveAnOldRun();
    run.desktop.at(row.goes, [&] { run.desktop.cutOff(kStudy); });
    run.desktop.at(row.comes, [&] { run.desktop.reconnect(); });
    run.desktop.advance(1);
    const FaultyRun::Outcome outcome = run.run();
    EXPECT_EQ(outcome.status, row.status);
    ASSERT_EQ(outcome.messages.size(), row.messages.size());
    for (std::size_t i = 0; i < row.messages.size(); ++i) {
      EXPECT_TRUE(outcome.messages[i].starts_with(row.messages[i])) << outcome.messages[i];
    }
    EXPECT_FALSE(run.desktop.enginesRunning());
    if (row.status.empty()) continue;
    EXPECT_EQ(run.desktop.enginesStarted(), 1) << "a verdict without an engine";
    EXPECT_TRUE(run.desktop.fileBytes(kStudy + "korventally.lst")->starts_with("KORVENTALLY"));
  }
}

TEST(Faults, NothingIsSaidOfAnEngineWhoseDirectoryIsOutOfReach) {
  FaultyRun run;
  // The interpreter does not get to read its batch file, and nothing ever runs.
  run.desktop.beforeEach(Operation::kStart, [&] { run.desktop.cutOff(kStudy); });
  std::uint32_t back = 0;
  run.desktop.at(20'000, [&] {
    run.desktop.reconnect();
    back = run.desktop.now();
  });
  const FaultyRun::Outcome outcome = run.run();
  EXPECT_GT(back, 0u) << "it waited for that long";
  ASSERT_EQ(outcome.messages.size(), 1u);
  EXPECT_TRUE(outcome.messages[0].starts_with("The engine has ended without writing"));
  EXPECT_EQ(run.leftovers(), std::vector<std::string>{});
}

TEST(Faults, LeftoversGoWhenTheirDirectoryIsBackUnlessSomebodyHasThem) {
  const auto inp = kStudy + "korventally.inp";
  for (const std::string who : {"nobody", "another window", "the user", "a later run"}) {
    SCOPED_TRACE(who);
    FaultyRun run;
    run.desktop.answerMessages([](const std::string&, Buttons) { return Answer::kOk; });
    std::unique_ptr<HeldFile> claim;
    run.inSummary([&](frmRunSummary& s) {
      run.desktop.at(4150, [&] { run.desktop.cutOff(kStudy); });
      click(s.cmdRUN);
      EXPECT_EQ(s.lblStatus.text(), "RUN COMPLETED");
      run.desktop.advance(22'000);
      run.desktop.reconnect();
      EXPECT_TRUE(run.desktop.fileBytes(inp));
      if (who == "another window") claim = claimFolder(kStudy).value();
      if (who == "the user") run.theCase.openedFrom = inp;
      if (who == "a later run") run.theCase.DebugMode = true;
      if (who == "a later run") click(s.cmdRUN);
      run.desktop.advance(12'000);
      EXPECT_EQ(run.desktop.fileBytes(inp).has_value(), who != "nobody");
    });
  }
}

}  // namespace
}  // namespace korventally::testing
