#include "run/verdict.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string_view>
#include <vector>

#include "platform/events.h"
#include "platform/files.h"
#include "platform/result.h"

namespace korventally {
namespace {

constexpr std::string_view kCompletedLine = "RUN COMPLETED";
constexpr std::string_view kFailedLine = "RUN FAILED";
constexpr std::size_t kChunk = 256 * std::size_t{1024};
/// Reading a chunk takes a millisecond or so; events are handled often enough for the window to
/// feel alive, and seldom enough not to slow the reading.
constexpr std::uint32_t kMostWithoutEvents = 20;

}  // namespace

void VerdictScanner::feed(std::string_view bytes) {
  for (const char c : bytes) {
    if (c == '\r' || c == '\n') {
      verdict_ = verdict();
      line_.clear();
      pendingBlanks_ = 0;
      tooLong_ = false;
    } else if (!tooLong_) {
      addToLine(c);
    }
  }
}

std::optional<Verdict> VerdictScanner::verdict() const {
  const std::optional<Verdict> ofLine = verdictOfLine();
  return ofLine ? ofLine : verdict_;
}

void VerdictScanner::addToLine(char c) {
  if (c == ' ') {
    if (!line_.empty()) ++pendingBlanks_;
    return;
  }
  tooLong_ = line_.size() + pendingBlanks_ >= kCompletedLine.size();
  if (tooLong_) return;
  line_.append(pendingBlanks_, ' ');
  line_.push_back(c);
  pendingBlanks_ = 0;
}

std::optional<Verdict> VerdictScanner::verdictOfLine() const {
  if (tooLong_) return std::nullopt;
  if (line_ == kCompletedLine) return Verdict::kCompleted;
  if (line_ == kFailedLine) return Verdict::kFailed;
  return std::nullopt;
}

Result<std::optional<Verdict>> readVerdict(const std::string& path, const std::stop_token& stop) {
  auto file = openForReading(path);
  if (!file) return file.error();
  const auto size = file.value()->size();
  if (!size) return size.error();
  VerdictScanner scanner;
  std::vector<char> buffer(kChunk);
  std::uint64_t left = size.value();
  std::uint32_t lastEvents = tickCount();
  while (!stop.stop_requested()) {
    const std::uint64_t most = std::min<std::uint64_t>(left, kChunk);
    const auto count = file.value()->read(std::span(buffer).first(most));
    if (!count) return count.error();
    // The end comes early when the file has been cut short.
    if (count.value() == 0) return scanner.verdict();
    left -= count.value();
    scanner.feed({buffer.data(), count.value()});
    if (tickCount() - lastEvents >= kMostWithoutEvents) {
      processPendingEvents();
      lastEvents = tickCount();
    }
  }
  return std::optional<Verdict>();
}

}  // namespace korventally
