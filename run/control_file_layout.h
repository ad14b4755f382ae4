#pragma once

#include <cstddef>

/// What every control file has in common, for those who write it and who read it.
namespace korventally::control_file {

/// In front of each value: 29 blanks and a colon.
inline constexpr const char* kLinePrefix = "                             :";
/// The lines of a file, besides two for each source group.
inline constexpr std::size_t kLinesBesidesGroups = 16;

// Values that the engine expects and that no case varies.
inline constexpr const char* kScaleAndOffset = "1000000.0,0.0";  ///< g/m**3 to ug/m**3
inline constexpr const char* kFixedOne = "1";
inline constexpr const char* kFixedTwo = "2";
inline constexpr const char* kFixedZero = "0";

}  // namespace korventally::control_file
