#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/desktop.h"
#include "platform/result.h"

namespace korventally::headless {

/// Counts the calls of every operation that can fail, and says which of them do.
class Faults {
 public:
  void plan(Desktop::Operation operation, int nth, Error error, bool fromThenOn) {
    planned_[operation].push_back({nth, std::move(error), fromThenOn});
  }
  void doBefore(Desktop::Operation operation, std::function<void()> action) {
    meanwhile_[operation] = std::move(action);
  }
  int calls(Desktop::Operation operation) const {
    const auto found = calls_.find(operation);
    return found == calls_.end() ? 0 : found->second;
  }

  /// Counts a call on `path`; the error that it is to give, or none.
  std::optional<Error> call(Desktop::Operation operation, const std::string& path) {
    const int nth = ++calls_[operation];
    if (const auto meanwhile = meanwhile_.find(operation); meanwhile != meanwhile_.end()) {
      meanwhile->second();
    }
    for (const Fault& fault : planned_[operation]) {
      if (nth != fault.nth && !(fault.fromThenOn && nth > fault.nth)) continue;
      Error error = fault.error;
      if (error.path.empty()) error.path = path;
      return error;
    }
    return std::nullopt;
  }

 private:
  struct Fault {
    int nth;
    Error error;
    bool fromThenOn;
  };
  std::map<Desktop::Operation, std::vector<Fault>> planned_;
  std::map<Desktop::Operation, int> calls_;
  std::map<Desktop::Operation, std::function<void()>> meanwhile_;
};

}  // namespace korventally::headless
