#include "tests/faults/plan.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

namespace korventally::testing {
namespace {

constexpr std::array kKinds = {"click", "paste", "type",  "key",
                               "menu",  "drop",  "close", "end the session"};
constexpr std::array kOperations = {"delete", "write", "open", "read", "hold", "start", "look"};

/// Leaves out ever smaller pieces of a list, as long as the plan still fails.
template <class List>
void shorten(Plan& plan, List Plan::*list, const std::function<bool(const Plan&)>& fails) {
  for (std::size_t piece = std::max<std::size_t>((plan.*list).size(), 1); piece > 0; piece /= 2) {
    for (std::size_t at = 0; at < (plan.*list).size();) {
      Plan less = plan;
      const auto begin = (less.*list).begin() + static_cast<std::ptrdiff_t>(at);
      const std::size_t count = std::min(piece, (less.*list).size() - at);
      (less.*list).erase(begin, begin + static_cast<std::ptrdiff_t>(count));
      if (fails(less)) {
        plan = std::move(less);
      } else {
        at += piece;
      }
    }
  }
}

}  // namespace

std::string inWords(const Plan& plan) {
  std::ostringstream words;
  words << plan.name << ", answers " << plan.answers << '\n';
  for (const Action& action : plan.actions) {
    words << "  after " << action.after << " ms: " << kKinds[static_cast<std::size_t>(action.kind)]
          << " \"" << action.where << "\" \"" << action.text << "\"\n";
  }
  for (const PlannedFault& fault : plan.faults) {
    words << "  " << kOperations[static_cast<std::size_t>(fault.operation)] << " no. " << fault.nth
          << (fault.fromThenOn ? " and all later ones fail: " : " fails: ") << fault.error.text
          << " (" << fault.error.code << ")\n";
  }
  return words.str();
}

Plan shortened(Plan plan, const std::function<bool(const Plan&)>& fails) {
  shorten(plan, &Plan::faults, fails);
  shorten(plan, &Plan::actions, fails);
  return plan;
}

}  // namespace korventally::testing
