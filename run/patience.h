#pragma once

#include <cstdint>
#include <optional>

namespace korventally {

/// When a run without a verdict is worth a question to the user. As long as its list file is not
/// there or cannot be read: 30 s after the start or the last reading. Once all processes of the run
/// are gone: at once, unless the list file is there and cannot be read. Once the user has said to
/// keep waiting, no question comes for 30 s. Times are tick counts; the subtractions are unsigned,
/// so they hold when the counter wraps.
class Patience {
 public:
  static constexpr std::uint32_t kLimit = 30000;  ///< milliseconds

  explicit Patience(std::uint32_t now) : since_(now) {}

  /// To its end; it held no verdict.
  void listFileWasRead(std::uint32_t now) { since_ = now; }
  /// The user keeps waiting.
  void extend(std::uint32_t now) {
    since_ = now;
    extended_ = now;
  }

  /// Whether the list file has been out of reach for too long.
  bool listFileOverdue(std::uint32_t now) const { return now - since_ >= kLimit; }
  /// For a run whose processes are gone: whether nothing more is to be waited for.
  bool verdictOverdue(std::uint32_t now) const { return !extended_ || now - *extended_ >= kLimit; }

 private:
  std::uint32_t since_;
  std::optional<std::uint32_t> extended_;
};

}  // namespace korventally
