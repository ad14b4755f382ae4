// The one way in which the engine says that it cannot go on.
#pragma once

#include <stdexcept>
#include <string>

namespace korventally::engine {

/// Carries a plain sentence for the list file: what is wrong, in which file, on which line.
/// Thrown anywhere below runCase(), which turns it into the sentence and the line "RUN FAILED".
class Fault : public std::runtime_error {
 public:
  explicit Fault(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace korventally::engine
