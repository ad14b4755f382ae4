#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::headless {

/// A command of a batch file that would be run.
struct Command {
  std::vector<std::string> words;  ///< what its program gets as its arguments, its own name first
  bool redirected = false;         ///< it writes or reads a file, too
};

/// What the command interpreter knows when it reads a batch file.
struct Surroundings {
  /// The value of a variable, or nothing where there is none.
  std::function<std::optional<std::string>(const std::string& name)> variable;
  std::vector<std::string> arguments;  ///< of the batch file, its own path first
  bool delayedExpansion = false;       ///< "cmd /v:on"
};

/// The commands of a batch file as Windows' command interpreter reads them, line by line: first the
/// percent signs, then quotes, carets and separators, with delayed expansion the exclamation marks,
/// and last the arguments as a program takes its command line apart. Nothing when the interpreter
/// would stop at an error, and for what has a grammar of its own: "for", "if" and NUL bytes.
std::optional<std::vector<Command>> readBatchFile(std::string_view text,
                                                  const Surroundings& surroundings = {});

/// A line with its percent signs expanded, as the first of these steps. Nothing at an error.
std::optional<std::string> expandPercents(std::string_view line, const Surroundings& surroundings);

/// The arguments that a program makes of its command line.
std::vector<std::string> argumentsOf(std::string_view commandLine);

}  // namespace korventally::headless
