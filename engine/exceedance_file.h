// Every exceedance with every group, beside the list file, for a spreadsheet: a table with commas
// (RFC 4180) whose first line names the columns and marks the file as the engine's own.
#pragma once

#include <cstdint>
#include <string>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/report_results.h"
#include "engine/side_file.h"

namespace korventally::engine {

class ExceedanceFile {
 public:
  /// As SideFile takes them.
  ExceedanceFile(const std::string& pathText, const std::string& role);

  /// Creates the file with its first line. Does nothing when there is a problem already.
  void begin(const Case& theCase);
  void add(const Names& names, const Averages& averages, const Place& place);
  void finish() { file_.finish(); }
  void keep() { file_.keep(); }

  const std::string& name() const { return file_.name(); }
  std::uint64_t rows() const { return rows_; }
  const std::string& problem() const { return file_.problem(); }

 private:
  SideFile file_;
  std::uint64_t rows_ = 0;
};

}  // namespace korventally::engine
