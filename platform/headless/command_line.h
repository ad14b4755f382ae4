#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::headless {

/// Reads a line of a batch file as the command interpreter does: first the percent signs (two stand
/// for one, an undefined variable for nothing), then the quotes, outside of which "&" separates
/// commands and blanks separate words. Returns the words of each command without their quotes; none
/// when the line leaves a quote open or uses another special character outside quotes.
std::optional<std::vector<std::vector<std::string>>> readCommandLine(std::string_view line);

}  // namespace korventally::headless
