// Ordinary uses of the program, from its start to its end: what the faults are played against.
#pragma once

#include <functional>
#include <vector>

#include "tests/faults/plan.h"

namespace korventally::testing {

std::vector<Plan> scenarios();

/// Something that a user could do anywhere.
Action anyAction(const std::function<int(int)>& below);

}  // namespace korventally::testing
