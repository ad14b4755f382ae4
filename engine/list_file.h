// The list file: what a user reads after the run, and what the wizard waits for.
//
// Its last line is the verdict. "RUN COMPLETED" is written only after everything else is known to
// be on the disk; whatever goes wrong later turns it into "RUN FAILED" again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/system_files.h"

namespace korventally::engine {

class ListFile {
 public:
  explicit ListFile(const NativePath& path);
  ~ListFile();

  /// Adds one line; it is readable by others at once. The text holds no line end.
  void line(std::string_view text = {});

  /// The last words of a run that went well. Throws Fault when they cannot be made safe.
  void complete();

  /// The last words of a run that did not: the sentence, then the verdict. When the disk takes no
  /// more, they replace the end of what is there. False when even that failed.
  bool fail(const std::string& sentence) noexcept;

 private:
  void finish(std::uint64_t place, std::string_view text);

  OutputFile file_;
  std::uint64_t body_ = 0;  ///< bytes known to hold nothing but whole lines
};

}  // namespace korventally::engine
