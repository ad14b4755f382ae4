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

bool endsLine(char c) { return c == '\r' || c == '\n'; }

/// Where the next text stands that every verdict begins with; `npos` when there is none. A list
/// file has few of them in many megabytes, so block after block is asked whether it may hold one,
/// by a loop that the compiler makes vector instructions of.
std::size_t findStem(std::string_view text, std::size_t from) {
  constexpr std::string_view kStem = "RUN";
  constexpr std::size_t kBlock = 256;
  for (; text.size() - from >= kBlock + 2; from += kBlock) {
    const char* const at = text.data() + from;
    unsigned char found = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
      found |= static_cast<unsigned char>((at[i] == 'R') & (at[i + 1] == 'U') & (at[i + 2] == 'N'));
    }
    if (found != 0) break;
  }
  return text.find(kStem, from);
}

/// The length of the line that begins there, without its end.
std::size_t lengthOfLine(std::string_view text) {
  return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), endsLine) - text.begin());
}

/// The length of the lines that are complete: of all up to the last line end.
std::size_t lengthOfLines(std::string_view text) {
  const auto end = std::find_if(text.rbegin(), text.rend(), endsLine);
  return static_cast<std::size_t>(text.rend() - end);
}

std::string_view withoutBlanksBehind(std::string_view line) {
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::optional<Verdict> verdictOf(std::string_view line) {
  if (line == kCompletedLine) return Verdict::kCompleted;
  if (line == kFailedLine) return Verdict::kFailed;
  return std::nullopt;
}

/// The last verdict in complete lines, each with its end.
std::optional<Verdict> lastVerdictIn(std::string_view lines) {
  std::optional<Verdict> last;
  for (std::size_t at = 0; (at = findStem(lines, at)) != std::string_view::npos; ++at) {
    // Only blanks may stand between the beginning of the line and the stem.
    const std::size_t before = lines.substr(0, at).find_last_not_of(' ');
    if (before != std::string_view::npos && !endsLine(lines[before])) continue;
    const std::string_view line = lines.substr(at, lengthOfLine(lines.substr(at)));
    if (const auto verdict = verdictOf(withoutBlanksBehind(line))) last = verdict;
  }
  return last;
}

}  // namespace

void VerdictScanner::feed(std::string_view bytes) {
  const std::size_t complete = lengthOfLines(bytes);
  if (complete > 0) {
    const std::size_t begun = lengthOfLine(bytes);
    addToLine(bytes.substr(0, begun));
    verdict_ = verdict();
    line_.clear();
    pendingBlanks_ = 0;
    tooLong_ = false;
    if (const auto last = lastVerdictIn(bytes.substr(begun, complete - begun))) verdict_ = last;
  }
  addToLine(bytes.substr(complete));
}

std::optional<Verdict> VerdictScanner::verdict() const {
  const auto ofLine = tooLong_ ? std::nullopt : verdictOf(line_);
  return ofLine ? ofLine : verdict_;
}

void VerdictScanner::addToLine(std::string_view bytes) {
  for (const char c : bytes) {
    if (tooLong_) return;
    addToLine(c);
  }
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
