#pragma once

#include <cstdint>
#include <optional>

namespace korventally {

/// Decides when a run that shows no verdict is worth a question: when its list file is still not
/// there 30 s after the start, or when all of its processes are gone. After "keep waiting" the next
/// question comes 30 s later at the earliest.
class Patience {
 public:
  static constexpr std::uint32_t kLimit = 30000;  ///< milliseconds

  explicit Patience(std::uint32_t now) : start_(now) {}

  bool exhaustedWithoutListFile(std::uint32_t now, bool processesGone) const {
    return limitPassed(now) || (processesGone && !extended_);
  }
  bool exhaustedWithListFile(std::uint32_t now, bool processesGone) const {
    return processesGone && (!extended_ || limitPassed(now));
  }
  /// The user keeps waiting.
  void extend(std::uint32_t now) {
    start_ = now;
    extended_ = true;
  }

 private:
  /// Unsigned, so that it holds when the tick counter wraps.
  bool limitPassed(std::uint32_t now) const { return now - start_ >= kLimit; }

  std::uint32_t start_;
  bool extended_ = false;
};

}  // namespace korventally
