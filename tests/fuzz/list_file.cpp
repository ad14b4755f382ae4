#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "run/verdict.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

std::optional<Verdict> verdictOf(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  line = line.substr(0, line.find_last_not_of(' ') + 1);
  if (line == "RUN COMPLETED") return Verdict::kCompleted;
  if (line == "RUN FAILED") return Verdict::kFailed;
  return std::nullopt;
}

std::optional<Verdict> lastVerdictIn(std::string_view file) {
  for (;;) {
    const std::size_t begin = file.find_last_of("\r\n") + 1;  // 0 in the first line
    if (const auto verdict = verdictOf(file.substr(begin))) return verdict;
    if (begin == 0) return std::nullopt;
    file.remove_suffix(file.size() - begin + 1);
  }
}

}  // namespace

void listFile(std::string_view bytes) {
  bytes = bytes.substr(0, 100);
  const std::optional<Verdict> expected = lastVerdictIn(bytes);
  const char* const promise = "the last line that is a verdict, in any pieces and at any place";
  for (std::size_t chunk = bytes.size(); chunk > 0; --chunk) {
    VerdictScanner scanner;
    for (std::size_t fed = 0; fed < bytes.size(); fed += chunk) {
      scanner.feed(bytes.substr(fed, chunk));
      const std::string_view soFar = bytes.substr(0, fed + chunk);
      require(chunk > 1 || scanner.verdict() == lastVerdictIn(soFar), "so far as if all");
    }
    require(scanner.verdict() == expected, promise);
  }
  // Complete lines are searched in blocks of 256 bytes: every byte stands at the end of one.
  for (std::size_t before = 256 - bytes.size(); before <= 256; ++before) {
    VerdictScanner scanner;
    scanner.feed(std::string(before, '\n').append(bytes));
    require(scanner.verdict() == expected, promise);
  }
}

}  // namespace korventally::fuzz
