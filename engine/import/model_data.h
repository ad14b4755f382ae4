// What the import reads of a dispersion model's files, whichever form they have.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/import/model_value.h"
#include "engine/import/series.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// Where a receptor stands, as the model prints it. It has no name of its own.
struct ModelPlace {
  std::string x, y;     ///< without blanks around them
  std::string network;  ///< empty for a discrete receptor
};

/// What is to be read, and where it goes.
struct Reading {
  ValueUnit unit = ValueUnit::kMicrograms;
  std::function<bool(std::string_view)> wants;  ///< whether a group of this name is to be taken
  std::function<NativePath()> newPart;          ///< a file of its own for a series; any thread
  /// What the part file of a group begins with, given the receptors; any thread.
  std::function<std::string(const std::string& group, const std::vector<ModelPlace>&)> header;
  /// How an hour of zeros is to be marked, as far as can be told while reading; nothing: not at
  /// all.
  std::function<std::optional<HourKind>(Hour)> zeroMark;
  std::function<bool()> mayGiveUp;  ///< once true, what is read is wanted no more
};

/// What one file came to.
struct ModelData {
  std::string file;
  std::uint64_t bytes = 0;
  std::vector<ModelPlace> places;   ///< empty for an unformatted file
  std::uint64_t firstRow = 0;       ///< line of the first receptor's row
  std::vector<SeriesFacts> series;  ///< in the order of their first hours in the file
  /// What was not taken: "24-HR averages", "group OTHER1", and how many rows or records.
  std::map<std::string, std::uint64_t> leftOut;
  /// Hours in which a group that was left out has a value above zero: they are not calm.
  std::set<Hour> hoursWithValues;
};

/// Reads a formatted file to its end. Throws Fault with file and line.
ModelData readFormatted(InputFile& file, const Reading& reading);

/// Reads an unformatted file to its end; it does not tell how many `receptors` there are. Throws
/// Fault with file and record.
ModelData readUnformatted(InputFile& file, const Reading& reading, std::size_t receptors);

}  // namespace korventally::engine
