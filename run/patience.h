#pragma once

#include <cstdint>
#include <optional>

namespace korventally {

/// Decides when a run that shows no verdict is worth a question to the user: when its list file has
/// not been there, or could not be read, for 30 s, or when all of its processes are gone. After
/// "keep waiting" the next question comes 30 s later at the earliest. Times are tick counts; the
/// subtractions are unsigned, so they hold when the counter wraps.
class Patience {
 public:
  static constexpr std::uint32_t kLimit = 30000;  ///< milliseconds

  explicit Patience(std::uint32_t now) : since_(now) {}

  void listFileWasRead(std::uint32_t now) { since_ = now; }
  /// The user keeps waiting.
  void extend(std::uint32_t now) {
    since_ = now;
    extended_ = now;
  }

  bool listFileOverdue(std::uint32_t now) const { return now - since_ >= kLimit; }
  /// For a run whose processes are gone.
  bool verdictOverdue(std::uint32_t now) const { return !extended_ || now - *extended_ >= kLimit; }

 private:
  std::uint32_t since_;
  std::optional<std::uint32_t> extended_;
};

}  // namespace korventally
