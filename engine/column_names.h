// The receptors that a concentration file names in lines "# receptors: R01 R02 ..." at its top.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "engine/receptor_file.h"

namespace korventally::engine {

class ColumnNames {
 public:
  /// Takes a line of the file's top; any other remark is passed over. Several such lines continue
  /// each other. Returns what is wrong, to follow "The file F, line N"; empty when nothing is.
  std::string take(std::string_view line);

  bool empty() const { return columns_.empty(); }
  std::size_t count() const { return columns_.size(); }

  /// For each receptor its column, from 0 on. Throws Fault with file, line and name when the
  /// receptor file lists one that `file` does not name.
  std::vector<std::size_t> columnsOf(const Receptors& receptors, const std::string& file) const;

 private:
  std::map<std::string, std::size_t> columns_;
};

}  // namespace korventally::engine
