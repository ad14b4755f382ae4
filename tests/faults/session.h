// One use of the whole program on the simulated desktop, and what must hold in every one.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"
#include "tests/faults/plan.h"

namespace korventally::testing {

struct Outcome {
  std::vector<std::string> violations;  ///< of what must hold; none in a good program
  std::map<Desktop::Operation, int> calls;
  std::vector<std::string> messages;
  int completed = 0;  ///< verdicts "RUN COMPLETED" that were shown
};

/// Starts the program, plays the plan and closes what the plan has left open.
Outcome play(const Plan& plan);

}  // namespace korventally::testing
