#pragma once

#include <cstdint>
#include <functional>
#include <map>

namespace korventally::headless {

/// The world's time, and what happens in it. Time passes only in `step`.
class Clock {
 public:
  std::uint32_t ticks() const { return static_cast<std::uint32_t>(offset_ + time_); }
  void setTicks(std::uint32_t ticks) { offset_ = ticks - time_; }
  /// Milliseconds since the world began; never wraps.
  std::uint64_t time() const { return time_; }

  void at(std::uint64_t time, std::function<void()> action);
  bool nothingPlanned() const { return planned_.empty(); }
  /// Lets time pass and does what was planned for it, in order.
  void step(std::uint32_t milliseconds);

 private:
  std::uint64_t time_ = 0;
  std::uint64_t offset_ = 0;
  std::multimap<std::uint64_t, std::function<void()>> planned_;
};

}  // namespace korventally::headless
