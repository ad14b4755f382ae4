// Every exceedance with every group, beside the list file, for a spreadsheet: a table with commas
// (RFC 4180) whose first line names the columns and marks the file as the engine's own.
//
// While it grows, its first line begins with another word of the same length: a table that is cut
// short, by a kill or a power cut, can be told from a whole one. Whatever goes wrong here is a
// sentence for the warnings; no run fails because of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/report_results.h"
#include "engine/system_files.h"

namespace korventally::engine {

class ExceedanceFile {
 public:
  /// Deletes the table of an earlier run at once, so that none is left should this run fail. A file
  /// of that name that is not the engine's own stays as it is, and so does one with a `role` in the
  /// case, such as "the control file".
  ExceedanceFile(const std::string& pathText, const std::string& role);
  ExceedanceFile(const ExceedanceFile&) = delete;
  ExceedanceFile& operator=(const ExceedanceFile&) = delete;

  /// Deletes what was written unless keep() was called.
  ~ExceedanceFile();

  /// Creates the file with its first line. Does nothing when there is a problem already.
  void begin(const Case& theCase);
  void add(const Names& names, const Averages& averages, const Place& place);
  /// Puts everything on the disk and then says so in the first line.
  void finish();
  /// The run has its verdict: the table stays.
  void keep() { keep_ = true; }

  const std::string& name() const { return name_; }
  std::uint64_t rows() const { return rows_; }
  /// Why there is no table; empty when there is one.
  const std::string& problem() const { return problem_; }

 private:
  template <typename Work>
  void guarded(const Work& work);
  void write();
  void discard() noexcept;

  std::string name_;
  NativePath path_;
  std::string problem_;
  std::optional<OutputFile> file_;
  std::string pending_;  ///< rows that are not in the file yet
  std::uint64_t rows_ = 0;
  bool keep_ = false;
};

}  // namespace korventally::engine
