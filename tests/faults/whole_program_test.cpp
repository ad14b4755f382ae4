#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"
#include "platform/result.h"
#include "tests/faults/plan.h"
#include "tests/faults/scenarios.h"
#include "tests/faults/session.h"

namespace korventally::testing {
namespace {

using Operation = Desktop::Operation;

const std::vector<Error>& errorsOf(Operation operation) {
  static const Error busy = {ErrorKind::kBusy, 32, "The file is used by another process.", ""};
  static const Error denied = {ErrorKind::kOther, 5, "Access is denied.", ""};
  static const Error full = {ErrorKind::kOther, 112, "There is not enough space on the disk.", ""};
  static const Error missing = {ErrorKind::kNotFound, 2, "The file was not found.", ""};
  static const Error away = {ErrorKind::kOutOfReach, 53, "The network path was not found.", ""};
  static const std::map<Operation, std::vector<Error>> errors = {
      {Operation::kDelete, {busy, denied, missing, away}},
      {Operation::kWrite, {busy, denied, full, away}},
      {Operation::kOpen, {busy, denied, missing, away}},
      {Operation::kRead, {busy, denied, away}},
      {Operation::kHold, {busy, denied, full, away}},
      {Operation::kStart, {denied, missing}},
      {Operation::kLook, {missing}}};
  return errors.at(operation);
}

/// The calls of a scenario that is polling are all alike after a while.
constexpr int kMostCalls = 24;

/// Most are worth their time where memory is watched.
#ifdef KORVENTALLY_SANITIZE
constexpr unsigned kRandomRuns = 7500;
#else
constexpr unsigned kRandomRuns = 1500;
#endif

bool fails(const Plan& plan) { return !play(plan).violations.empty(); }

/// Whether nothing was wrong; a plan that fails is told with as little in it as makes it fail.
bool holds(const Plan& plan, const std::string& replay) {
  if (!fails(plan)) return true;
  const Plan less = shortened(plan, fails);
  ADD_FAILURE() << play(less).violations.front() << "\n" << inWords(less) << replay;
  return false;
}

TEST(WholeProgram, ScenariosGoAsTheirNamesSay) {
  const std::map<std::string, int> completed = {{"run to the verdict", 1},
                                                {"over an old run", 1},
                                                {"pressed twice", 1},
                                                {"debug mode", 1},
                                                {"run again, also within the editor's wait", 3},
                                                {"a long list file", 1},
                                                {"an engine that outlives its verdict", 3},
                                                {"started with a control file", 1},
                                                {"a control file dropped", 1}};
  for (const Plan& plan : scenarios()) {
    SCOPED_TRACE(plan.name);
    const Outcome outcome = play(plan);
    EXPECT_EQ(outcome.violations, std::vector<std::string>{});
    EXPECT_EQ(outcome.completed, completed.contains(plan.name) ? completed.at(plan.name) : 0)
        << ::testing::PrintToString(outcome.messages);
  }
}

TEST(WholeProgram, StandsEverySingleFault) {
  int runs = 0;
  for (const Plan& scenario : scenarios()) {
    for (const auto& [operation, calls] : play(scenario).calls) {
      for (int nth = 1; nth <= std::min(calls, kMostCalls); ++nth) {
        for (const Error& error : errorsOf(operation)) {
          for (const bool fromThenOn : {false, true}) {
            Plan plan = scenario;
            plan.faults = {{operation, nth, error, fromThenOn}};
            ++runs;
            if (!holds(plan, "")) return;
          }
        }
      }
    }
  }
  EXPECT_GT(runs, 2500);
  std::cout << runs << " runs\n";
}

/// A scenario with doings put in, left out and delayed, and with up to two faults.
Plan randomPlan(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  static const std::vector<Plan> all = scenarios();
  Plan plan = all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
  for (int change = below(6); change > 0; --change) {
    const auto at = plan.actions.begin() + below(static_cast<int>(plan.actions.size()));
    if (below(4) == 0 && plan.actions.size() > 1) {
      plan.actions.erase(at);
    } else {
      plan.actions.insert(at, anyAction(below));
    }
  }
  for (char& answer : plan.answers = "YYYY") answer = below(3) == 0 ? 'N' : 'Y';
  for (int fault = below(3); fault > 0; --fault) {
    const auto operation = static_cast<Operation>(below(7));
    const auto& errors = errorsOf(operation);
    plan.faults.push_back({operation, 1 + below(12),
                           errors[static_cast<std::size_t>(below(static_cast<int>(errors.size())))],
                           below(2) == 0});
  }
  return plan;
}

TEST(WholeProgram, StandsWhateverUsersDoWhileItFails) {
  const char* const given = std::getenv("KORVENTALLY_SEED");
  const unsigned first =
      given != nullptr ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
  const unsigned count = given != nullptr ? 1 : kRandomRuns;
  std::cout << count << " runs from seed " << first << "\n";
  for (unsigned seed = first; seed != first + count; ++seed) {
    const std::string replay = "Replay: KORVENTALLY_SEED=" + std::to_string(seed) +
                               " korventally_tests --gtest_filter='WholeProgram.StandsWhatever*'";
    if (!holds(randomPlan(seed), replay)) return;
  }
}

}  // namespace
}  // namespace korventally::testing
