#include "platform/later.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/events.h"
#include "tests/platform/contract/world.h"

namespace korventally::testing {
namespace {

class Later : public ::testing::Test {
 protected:
  std::function<void()> note(const std::string& what) {
    return [this, what] { done += what; };
  }

  World world;
  std::string done;
};

TEST_F(Later, HappensInTheOrderOfItsTimes) {
  runLater("c", 40, note("c"));
  runLater("a", 0, note("a"));
  runLater("b", 20, note("b"));
  EXPECT_EQ(done, "") << "nothing before events are handled";
  finishLater();
  EXPECT_EQ(done, "abc");
  EXPECT_EQ(untilNextDue(), std::nullopt);
}

TEST_F(Later, NeverComesTooEarly) {
  const std::uint32_t start = tickCount();
  std::uint32_t came = 0;
  runLater("x", 60, [&] { came = tickCount() - start; });
  EXPECT_LE(untilNextDue(), 60u);
  EXPECT_GT(untilNextDue(), 20u);
  finishLater();
  EXPECT_GE(came, 60u);
  EXPECT_LT(came, 2000u);
}

TEST_F(Later, IsReplacedUnderTheSameName) {
  runLater("x", 10, note("old"));
  runLater("y", 20, note("other "));
  runLater("x", 30, note("new"));
  finishLater();
  EXPECT_EQ(done, "other new");
}

TEST_F(Later, MayPlanAgainAndHandleEvents) {
  runLater("x", 0, [&] {
    done += "first ";
    runLater("y", 0, note("inside "));
    runLater("x", 100, note("again"));
    const std::uint32_t start = tickCount();
    while (!done.ends_with("inside ") && tickCount() - start < 2000) processPendingEvents();
    done += "first ends ";
  });
  finishLater();
  EXPECT_EQ(done, "first inside first ends again");
}

TEST_F(Later, CanBeHurried) {
  runLater("x", 100000, note("x"));
  runLater("y", 200000, [&] { runLater("z", 300000, note("z")); });
  hurryLater();
  EXPECT_EQ(done, "xz");
  EXPECT_EQ(untilNextDue(), std::nullopt);
}

TEST(Events, LetTimePass) {
  World world;
  const std::uint32_t start = tickCount();
  int yields = 0;
  while (tickCount() - start < 20) {
    processPendingEvents();
    ++yields;
  }
  EXPECT_GT(yields, 1);
  EXPECT_LT(tickCount() - start, 2000u);
}

TEST(Events, AreHandledOnlyAsLongAsWanted) {
  World world;
  bool goOn = true;
  runLater("x", 0, [&] { goOn = false; });
  runEventsWhile([] { return false; });
  EXPECT_TRUE(goOn);
  runEventsWhile([&] { return goOn; });
  EXPECT_FALSE(goOn);
  EXPECT_EQ(untilNextDue(), std::nullopt);
}

}  // namespace
}  // namespace korventally::testing
