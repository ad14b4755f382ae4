// Text and numbers in fixed columns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korventally::engine {

/// The text at the left or right edge of a column. A longer text is not cut.
std::string left(std::string_view text, std::size_t width);
std::string right(std::string_view text, std::size_t width);

/// The number with so many decimals, or with as many as fit into `widest`; with an exponent where
/// not even its whole part fits.
std::string fixed(double number, int decimals, int widest = 10);

/// The number in the fewest digits that give it back: 91 for 91.0, 0.2 for 0.2.
std::string shortest(double number);

/// "  label:              value", the form of all single facts.
std::string fact(std::string_view label, std::string_view value);

}  // namespace korventally::engine
