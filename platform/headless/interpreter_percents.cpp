#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/interpreter.h"
#include "platform/headless/path.h"

namespace korventally::headless {
namespace {

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

/// "begin[,length]", both counted from the end when they are below zero.
std::string substring(const std::string& value, std::string_view range) {
  const auto size = static_cast<long>(value.size());
  long begin = 0, length = size;
  const std::size_t comma = std::min(range.find(','), range.size());
  std::from_chars(range.data(), range.data() + comma, begin);
  if (comma < range.size()) {
    std::from_chars(range.data() + comma + 1, range.data() + range.size(), length);
  }
  begin = std::clamp(begin < 0 ? size + begin : begin, 0L, size);
  const long end = std::clamp(length < 0 ? size + length : begin + length, begin, size);
  return value.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}

/// With "*" in front of it, all up to the text that is sought goes with it, once.
std::string replaced(std::string value, std::string sought, std::string_view by) {
  const bool fromStart = sought.starts_with('*');
  if (fromStart) sought.erase(0, 1);
  for (std::size_t at = 0;;) {
    at = foldCase(value).find(foldCase(sought), at);
    if (at == std::string::npos) return value;
    if (fromStart) return value.replace(0, at + sought.size(), by);
    value.replace(at, sought.size(), by);
    at += by.size();
  }
}

/// Works through a line from its beginning to its end.
class Expansion {
 public:
  Expansion(std::string_view line, const Surroundings& surroundings)
      : rest_(line), surroundings_(surroundings) {}

  std::optional<std::string> run() {
    while (!rest_.empty() && !failed_) {
      const std::size_t percent = std::min(rest_.find('%'), rest_.size());
      text_ += rest_.substr(0, percent);
      rest_.remove_prefix(percent);
      if (!rest_.empty()) takePercent();
    }
    return failed_ ? std::nullopt : std::optional(text_);
  }

 private:
  void takePercent() {
    rest_.remove_prefix(1);
    const char next = rest_.empty() ? '\0' : rest_.front();
    if (next == '%') {
      text_ += '%';
      rest_.remove_prefix(1);
    } else if (next == '*' || isDigit(next)) {
      rest_.remove_prefix(1);
      takeArguments(next);
    } else if (next == '~') {
      takeModifiedArgument();
    } else {
      takeVariable();
    }
  }

  void takeArguments(char which) {
    const auto& all = surroundings_.arguments;
    for (std::size_t i = 0; i < all.size(); ++i) {
      const bool wanted = which == '*' ? i > 0 : i == static_cast<std::size_t>(which - '0');
      if (!wanted) continue;
      if (which == '*' && i > 1) text_ += ' ';
      text_ += all[i];
    }
  }

  /// The parts of a path are not told apart: "%~nx1" is as good as "%1".
  void takeModifiedArgument() {
    const std::size_t digit = rest_.find_first_not_of("~fdpnxsatzFDPNXSATZ");
    failed_ = digit == std::string_view::npos || !isDigit(rest_[digit]);
    if (failed_) return;
    takeArguments(rest_[digit]);
    rest_.remove_prefix(digit + 1);
  }

  /// What is no variable, or an undefined one, vanishes in a batch file.
  void takeVariable() {
    std::size_t end = rest_.find_first_of("%:");
    if (end == std::string_view::npos) return;
    if (rest_.substr(end).starts_with(":%")) ++end;  // the colon belongs to the name
    const std::string name(rest_.substr(0, end));
    const auto value = surroundings_.variable ? surroundings_.variable(name) : std::nullopt;
    const bool edited = rest_[end] == ':';
    if (edited && value) return takeEdited(*value, end + 1);
    text_ += value.value_or("");
    rest_.remove_prefix(end + 1);
  }

  void takeEdited(const std::string& value, std::size_t begin) {
    const std::size_t end = rest_.find('%', begin);
    const std::string_view edit = rest_.substr(begin, end - begin);
    failed_ = edit.starts_with('=') || edit.starts_with("*=");
    if (failed_ || end == std::string_view::npos) return;
    const std::size_t equals = edit.find('=');
    const bool isRange = edit.starts_with('~') && edit.size() > 1 &&
                         edit.find_first_not_of("-,0123456789", 1) == std::string_view::npos;
    if (isRange) {
      text_ += substring(value, edit.substr(1));
    } else if (equals != std::string_view::npos) {
      text_ += replaced(value, std::string(edit.substr(0, equals)), edit.substr(equals + 1));
    } else {
      return;
    }
    rest_.remove_prefix(end + 1);
  }

  std::string_view rest_;
  const Surroundings& surroundings_;
  std::string text_;
  bool failed_ = false;
};

}  // namespace

std::optional<std::string> expandPercents(std::string_view line, const Surroundings& surroundings) {
  return Expansion(line, surroundings).run();
}

}  // namespace korventally::headless
