// A study in a folder of its own: tests change a file or a line of it and run the engine on it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "engine/engine.h"

namespace korventally::engine {

class Study {
 public:
  /// 2 to 50 groups, two receptors A and B, 6 hours from 2009-01-01 00, 3-hour averages; every
  /// value is 10 ug/m**3 for group 1 and 2 ug/m**3 for the others; standard 8, SIL 1.
  explicit Study(std::size_t groups = 3);
  ~Study();
  Study(const Study&) = delete;
  Study& operator=(const Study&) = delete;

  /// The values of the control file, line 1 first; tests may change, add or drop lines.
  std::vector<std::string> control;
  /// Put before each value; tests may break it.
  std::string prefix = std::string(29, ' ') + ":";
  std::string lineEnd = "\r\n";

  std::string& line(std::size_t number) { return control.at(number - 1); }
  std::size_t groups() const { return groups_; }

  std::filesystem::path path(std::string_view name) const { return folder_ / name; }
  std::string text(std::string_view name) const;  ///< the path as the control file gives it
  void write(std::string_view name, std::string_view bytes) const;
  std::string read(std::string_view name) const;

  /// Writes an hourly concentration file from 2009-01-01 00 on, one string of values per hour.
  void writeHours(std::string_view name, const std::vector<std::string>& hours) const;

  /// Writes the control file and runs the engine on it in this process.
  Result run() const;
  void writeControl() const;

  /// The list file of the last run, without line ends.
  std::vector<std::string> list() const;
  std::string lastLine() const;

 private:
  std::filesystem::path folder_;
  std::size_t groups_;
};

/// Writes a concentration file of hours from 2009-01-01 00 on, given in ug/m**3.
void writeMicro(const Study& study, const std::string& name,
                const std::vector<std::vector<double>>& hours);

/// Runs the study, which must complete, and returns the list file.
std::string completedList(const Study& study);

/// The section with the warnings, its lines joined by blanks.
std::string warningsIn(const std::string& list);

void expectSays(const std::string& list, const std::vector<std::string>& texts);
void expectSilent(const std::string& list, const std::string& text);

}  // namespace korventally::engine
