#include "run/control_file_lines.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "case/ModUtilities.h"
#include "platform/files.h"
#include "run/control_file_layout.h"

namespace korventally::control_file {
namespace {

bool isControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 32 || code == 127;
}

/// "A", "A or B", "A, B or C".
std::string choiceOf(const std::vector<std::string>& values) {
  std::string choice;
  for (const std::string& value : values) {
    if (!choice.empty()) choice += &value == &values.back() ? " or " : ", ";
    choice += value;
  }
  return choice;
}

}  // namespace

std::string shown(std::string_view value) {
  constexpr std::size_t kLongest = 60;
  const std::size_t length = characterCount(value);
  if (length > kLongest) return "a text of " + std::to_string(length) + " characters";
  return "\"" + std::string(value) + "\"";
}

Lines::Lines(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    complete_ = end != std::string_view::npos;
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(complete_ ? end + 1 : bytes.size());
    if (complete_ && line.ends_with('\r')) line.remove_suffix(1);
    lines_.push_back(line);
  }
}

std::string Lines::next(std::string_view what, std::size_t most) {
  ++line_;
  if (!fault_.empty()) return {};
  if (line_ > lines_.size()) {
    refuse("is missing");
    return {};
  }
  const std::string_view line = lines_[line_ - 1];
  if (!line.starts_with(kLinePrefix)) refuse("does not begin with 29 blanks and a colon");
  if (std::any_of(line.begin(), line.end(), isControl)) refuse("holds a control character");
  if (!fault_.empty()) return {};
  std::string value = fromAnsi(line.substr(std::string_view(kLinePrefix).size()));
  if (most != kAnyLength && characterCount(value) > most) {
    refuse("gives the " + std::string(what) + " as " + shown(value) + "; its box takes " +
           std::to_string(most) + " characters");
  }
  return value;
}

std::string Lines::nextOneOf(std::string_view what, const std::vector<std::string>& allowed) {
  const std::string value = next(what);
  if (std::find(allowed.begin(), allowed.end(), value) == allowed.end()) {
    refuse("gives the " + std::string(what) + " as " + shown(value) + "; it must be " +
           choiceOf(allowed));
  }
  return value;
}

void Lines::refuse(const std::string& reason) {
  refuseFile("Line " + std::to_string(line_) + " " + reason + ".");
}

void Lines::refuseFile(const std::string& reason) {
  if (fault_.empty()) fault_ = reason;
}

}  // namespace korventally::control_file
