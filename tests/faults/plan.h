// What happens in one simulated use of the program: what the user does, and what fails meanwhile.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"
#include "platform/result.h"

namespace korventally::testing {

/// One doing of the user's in the window in front, some time after the one before. What cannot be
/// done there is left undone, as by a user who finds no such button.
struct Action {
  enum class Kind { kClick, kPaste, kType, kKey, kMenu, kDrop, kClose, kEndSession };
  Kind kind;
  std::string where;  ///< caption or spoken name of a control, caption of a menu entry
  std::string text;   ///< to put in there; a path to choose in a dialog, or to drop
  std::uint32_t after = 20;
};

/// A call of the platform that fails: the n-th of its kind, alone or with all that follow.
struct PlannedFault {
  Desktop::Operation operation;
  int nth;
  Error error;
  bool fromThenOn;
};

struct Plan {
  std::string name;
  std::vector<Action> actions;
  std::vector<std::string> arguments;          ///< control files that the program is started with
  std::function<void(Desktop&)> surroundings;  ///< what is otherwise than in a plain study
  std::string answers = "Y";                   ///< to the questions in turn, the last one again
  std::vector<PlannedFault> faults;
};

/// The plan in words, one doing in a line.
std::string inWords(const Plan& plan);

/// A plan that `fails` with as few doings and faults as can be found by leaving out some at a time.
Plan shortened(Plan plan, const std::function<bool(const Plan&)>& fails);

}  // namespace korventally::testing
