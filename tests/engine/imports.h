// Imports of a dispersion model's files, each into a folder of its own.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "tests/engine/study.h"

namespace korventally::engine {

class Imports {
 public:
  /// Imports with these arguments behind --out. "=plot/all.pst" is that file below
  /// samples/dispersion, "@all.pst" one that write() made. Returns the sentence of the fault, empty
  /// when there is none; paths in it are without their folders.
  std::string run(const std::vector<std::string>& arguments);

  /// Where the results go.
  std::string folder = "out";
  /// How often progress is asked for, and what was said of it.
  std::chrono::milliseconds interval{1000};
  const std::vector<std::string>& progress() const { return progress_; }

  /// The report of the last import.
  const std::string& report() const { return report_; }

  /// A result; the empty text when there is none.
  std::string result(const std::string& name) const;
  bool hasFolder() const;

  /// A file for "@name", or in the folder of the results as "out/name".
  void write(const std::string& name, std::string_view content) const;

  /// The values of a concentration file, in ug/m**3, hour by hour; none for a marked hour.
  std::vector<std::vector<double>> values(const std::string& name) const;

  /// The lines of a concentration file that end with a mark: "2010 07 16 20 calm".
  std::vector<std::string> marks(const std::string& name) const;

  Study& study() { return study_; }

 private:
  Study study_;
  std::string report_;
  std::vector<std::string> progress_;
};

/// Rows of a model's formatted file, to be changed: header lines, then rows.
struct ModelText {
  explicit ModelText(const std::string& name);
  std::string text() const;
  std::vector<std::string> header, rows;
};

}  // namespace korventally::engine
