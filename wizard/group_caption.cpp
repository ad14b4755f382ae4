#include "wizard/group_caption.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/frame.h"

namespace korventally {
namespace {

constexpr const char* kAllSources = "ALL SOURCES";
constexpr const char* kFacility = "FACILITY";
constexpr const char* kOther = "OTHER";

/// The piece of a text between its n-th separator (0: its start) and the next one or its end.
std::string piece(const std::string& text, const std::string& separator, int n) {
  std::size_t start = 0;
  for (; n > 0; --n) {
    const std::size_t at = text.find(separator, start);
    if (at == std::string::npos) return {};
    start = at + separator.size();
  }
  return text.substr(start, text.find(separator, start) - start);
}

/// Small enough for the fixed groups to be counted in.
std::int32_t numberIn(const std::string& text) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max() - kFixedGroups;
  const std::string digits = trimBlanks(text);
  std::int32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return std::min(number, kMost);
}

}  // namespace

void SetGroupCaption(Frame& frame, std::int32_t slot, std::int32_t count) {
  std::string kind = slot == 1 ? kAllSources : slot == 2 ? kFacility : kOther;
  std::string number;
  if (slot > kFixedGroups) {
    number =
        " #" + std::to_string(slot - kFixedGroups) + " of " + std::to_string(count - kFixedGroups);
  }
  frame.setText("INPUT INFO FOR SOURCE GROUP \"" + kind + "\"" + number + ":");
}

GroupCaption readGroupCaption(const std::string& caption) {
  GroupCaption read;
  read.kind = trimBlanks(piece(caption, "\"", 1));
  if (read.kind == kAllSources) read.slot = 1;
  if (read.kind == kFacility) read.slot = 2;
  if (read.kind == kOther) {
    const std::string numbers = piece(caption, "\"", 2);
    read.slot = numberIn(piece(piece(numbers, "of", 0), "#", 1)) + kFixedGroups;
    read.count = numberIn(piece(piece(numbers, "of", 1), ":", 0)) + kFixedGroups;
  }
  return read;
}

}  // namespace korventally
