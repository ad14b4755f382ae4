#include "platform/headless/clock.h"

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <utility>

namespace korventally::headless {
namespace {

/// Two hours. No test needs as much: something waits for what never comes.
constexpr std::uint64_t kEndOfTime = 2ull * 60 * 60 * 1000;

}  // namespace

void Clock::at(std::uint64_t time, std::function<void()> action) {
  planned_.emplace(time, std::move(action));
}

void Clock::step(std::uint32_t milliseconds) {
  time_ += milliseconds;
  if (time_ > kEndOfTime) throw std::runtime_error("the program waits for what never comes");
  while (!planned_.empty() && planned_.begin()->first <= time_) {
    // Taken out first, because the action may let more time pass.
    const std::function<void()> action = std::move(planned_.begin()->second);
    planned_.erase(planned_.begin());
    action();
  }
}

}  // namespace korventally::headless
