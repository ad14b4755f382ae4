// Standard output and standard error, for users who look at a console.
//
// posix_console.cpp and, for Windows, windows_console.cpp stand behind it.
#pragma once

#include <cstdint>
#include <string>

namespace korventally::engine {

/// Create it before any file is opened: what is closed by then stays closed, whatever file is given
/// its number later. Writing never fails; where nothing is open or nobody reads, nothing happens.
class Console {
 public:
  Console();

  /// A line of standard output. Bytes are text as in every message here.
  void say(const std::string& line) const;

  /// A line of standard output that is only worth the moment: for a console, not for a file.
  void sayInPassing(const std::string& line) const;

  /// A line of standard error.
  void complain(const std::string& line) const;

 private:
  std::intptr_t output_ = -1;  ///< -1: closed
  std::intptr_t error_ = -1;
};

}  // namespace korventally::engine
