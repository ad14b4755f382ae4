#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::control_file {

/// Takes the bytes of a control file apart, value by value, and says what is wrong with the first
/// line that is no line of one. After that every value is empty.
class Lines {
 public:
  static constexpr std::size_t kAnyLength = 0;

  /// Bytes in Windows' ANSI code page; lines end with CR LF or LF.
  explicit Lines(std::string_view bytes);

  std::size_t count() const { return lines_.size(); }
  /// Whether the last line has a line end; without one the file may have been cut short.
  bool complete() const { return complete_; }

  /// The value of the next line, of so many characters at most.
  std::string next(std::string_view what, std::size_t most = kAnyLength);
  /// The value of the next line, which has to be one of these.
  std::string nextOneOf(std::string_view what, const std::vector<std::string>& allowed);

  /// Finds fault with the line that was read last.
  void refuse(const std::string& reason);
  /// Finds fault with the file as a whole.
  void refuseFile(const std::string& reason);
  /// The first fault, in a sentence for the user; empty when there is none.
  const std::string& fault() const { return fault_; }

 private:
  std::vector<std::string_view> lines_;
  bool complete_ = true;
  std::size_t line_ = 0;  ///< the number of the line that was read last
  std::string fault_;
};

/// A value for a message: in quotes, or its length when it is too long to be shown.
std::string shown(std::string_view value);

}  // namespace korventally::control_file
