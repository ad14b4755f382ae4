// The folder that an import writes into: either all of its results stand there, or none.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

/// How every text file of an import begins, so that the next one knows what it may replace.
inline constexpr std::string_view kImportMark = "# KorvenTally import";

class OutputFolder {
 public:
  /// Makes the folder when it is not there, and deletes what a killed import left there. Throws
  /// Fault.
  explicit OutputFolder(const NativePath& path);
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;

  /// Deletes the part files that were not put in place, and the folder if it was made for them.
  ~OutputFolder();

  /// A name for a part file, which is to begin with the mark; no other import has it. Any thread
  /// may ask.
  NativePath newPart();

  /// The path of a result. Throws Fault when a file of that name is there that is no import's.
  NativePath claim(const std::string& name) const;

  /// Plans a result: this part file under this name. Throws as claim() does.
  void add(const NativePath& part, const std::string& name);

  /// A part file with this content.
  NativePath write(std::string_view content);

  /// Puts all results in place, in the order in which they were added. Throws Fault.
  void commit();

 private:
  bool isOwn(const NativePath& path) const;
  void sweep() const;

  NativePath path_;
  std::string token_;  // of this import, in the names of its part files
  bool made_ = false;
  bool committed_ = false;
  std::mutex mutex_;
  std::vector<NativePath> parts_;
  std::vector<std::pair<NativePath, NativePath>> results_;  // part, path
};

/// A number of 16 hexadecimal digits that another content hardly has.
std::string checksum(std::string_view content);

}  // namespace korventally::engine
