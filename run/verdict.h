#pragma once

#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace korventally {

/// The engine's verdict on its own run.
enum class Verdict { kCompleted, kFailed };

/// Finds the verdict in a list file that is fed to it piece by piece: a line that is exactly
/// "RUN COMPLETED" or "RUN FAILED", apart from blanks around it. The last such line decides. CR LF,
/// LF and CR end a line, and so does the end of the file. Needs the same little memory for any
/// file, even for one endless line.
class VerdictScanner {
 public:
  void feed(std::string_view bytes);
  /// The verdict of everything fed, taken as a whole file.
  std::optional<Verdict> verdict() const;

 private:
  void addToLine(std::string_view bytes);
  void addToLine(char c);

  /// The line that has no end yet, from its first character that is no blank. Blanks wait in a
  /// counter of their own until something follows them.
  std::string line_;
  std::size_t pendingBlanks_ = 0;
  bool tooLong_ = false;
  std::optional<Verdict> verdict_;
};

/// Reads a list file from its first byte to the last that it has at the beginning, and returns its
/// verdict, or none; an error when it could not be read that far. What is written meanwhile is left
/// to the next look, or a file that grows fast enough would never be read to its end. Events are
/// handled while a large file is read; a request to `stop` ends the reading without a verdict.
Result<std::optional<Verdict>> readVerdict(const std::string& path,
                                           const std::stop_token& stop = {});

}  // namespace korventally
