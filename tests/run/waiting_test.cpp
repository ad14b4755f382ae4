#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/run/run_summary.h"

// What becomes of a run whose verdict does not come.
namespace korventally::testing {
namespace {

TEST_F(RunSummary, AsksOnceWhenTheListFileDoesNotCome) {
  engineWrites({{70000, "RUN COMPLETED"}}, 0);
  inSummary([&](frmRunSummary& s) {
    const std::string question = keepWaiting("The engine has not written its list file yet:");
    const std::uint32_t start = desktop.now();
    std::vector<std::uint32_t> asked;
    const auto note = [&] { asked.push_back(desktop.now() - start); };
    desktop.expectMessage(question, "Warning", Answer::kYes, note);
    desktop.expectMessage(question, "Warning", Answer::kNo, note);
    click(s.cmdRUN);
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_NEAR(asked[0], 30000, 200);
    EXPECT_NEAR(asked[1], 60000, 300);
    expectIdle(s, "");
    EXPECT_FALSE(desktop.enginesRunning());
    EXPECT_TRUE(leftovers().empty());
  });
}

TEST_F(RunSummary, AsksWhenTheEngineIsGoneWithoutAVerdict) {
  const struct {
    std::vector<std::pair<std::uint32_t, std::string>> lines;
    std::uint32_t ends;
    const char* what;
  } rows[] = {
      {{}, 100, "The engine has ended without writing its list file:"},
      {{{50, "RUN COMPLETED?"}}, 100, "The engine has ended without a verdict in its list file:"},
  };
  for (const auto& row : rows) {
    engineWrites(row.lines, row.ends);
    inSummary([&](frmRunSummary& s) {
      desktop.expectMessage(keepWaiting(row.what), "Warning", Answer::kYes);
      // Somebody else's verdict in the list file counts as well as the engine's.
      desktop.at(8000, [&] { desktop.putFile(list, "RUN COMPLETED"); });
      click(s.cmdRUN);
      expectIdle(s, kDone);
      desktop.expectMessage(keepWaiting(row.what), "Warning", Answer::kNo);
      click(s.cmdRUN);
      expectIdle(s, "");
    });
  }
}

TEST_F(RunSummary, TakesAVerdictWrittenJustBeforeTheEngineEnds) {
  engineWrites({{1100, "RUN COMPLETED"}}, 1101);
  inSummary([&](frmRunSummary& s) {
    click(s.cmdRUN);
    expectIdle(s, kDone);
  });
}

TEST_F(RunSummary, ALockedListFileSaysNothingAboutTheEngine) {
  desktop.setEngine([&](Desktop::Engine& engine) {
    engine.writeLine(100, list, "RUN COMPLETED");
    engine.at(101, [&] { desktop.lockFile(list, 5000); });
    engine.end(102);
  });
  inSummary([&](frmRunSummary& s) {
    click(s.cmdRUN);
    expectIdle(s, kDone);
  });
}

TEST_F(RunSummary, AsksWhenTheListFileStaysUnreadable) {
  desktop.setEngine([&](Desktop::Engine& engine) {
    engine.writeLine(100, list, "RUN COMPLETED");
    engine.at(101, [&] { desktop.lockFile(list, 100'000); });
  });
  inSummary([&](frmRunSummary& s) {
    bool named = false;
    desktop.answerMessages([&](const std::string& text, Buttons) {
      named = text.find("The list file cannot be read:\n" + list) == 0 &&
              text.find("(32)") != std::string::npos;
      return Answer::kNo;
    });
    click(s.cmdRUN);
    EXPECT_TRUE(named);
    expectIdle(s, "");
    desktop.answerMessages({});
  });
}

TEST_F(RunSummary, AListFileThatIsMadeAnewIsNoReasonToAsk) {
  desktop.setEngine([&](Desktop::Engine& engine) {
    engine.writeLine(100, list, "first");
    engine.at(35'000, [&] { desktop.removeFile(list); });
    engine.writeLine(39'000, list, "RUN COMPLETED");
  });
  inSummary([&](frmRunSummary& s) {
    click(s.cmdRUN);
    expectIdle(s, kDone);
  });
}

}  // namespace
}  // namespace korventally::testing
