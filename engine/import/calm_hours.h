// The calm and missing hours that a dispersion model names in its message file or its surface file.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// An hour that is calm or missing, and the line that says so.
struct NamedHour {
  HourKind kind = HourKind::kCalm;  ///< kCalm or kMissing
  std::uint64_t line = 0;
};

struct CalmHours {
  std::string file;
  std::map<Hour, NamedHour> hours;
  /// The hours that a surface file speaks of; a message file names no others than those above.
  std::optional<Hour> first, last;
};

/// Throws Fault with file and line when the file is neither.
CalmHours readCalmHours(InputFile& file);

}  // namespace korventally::engine
