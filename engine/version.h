// What the list file and the command line call this program.
#pragma once

#include <string_view>

namespace korventally::engine {

inline constexpr std::string_view kTitle = "KORVENTALLY REFERENCE ENGINE";
inline constexpr std::string_view kVersion = "1.2";

}  // namespace korventally::engine
