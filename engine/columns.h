// Text and numbers in fixed columns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::engine {

/// The text at the left or right edge of a column. A longer text is not cut.
std::string left(std::string_view text, std::size_t width);
std::string right(std::string_view text, std::size_t width);

/// The number with so many decimals, or with as many as fit into `widest`; with an exponent where
/// not even its whole part fits. A zero has no sign.
std::string fixed(double number, int decimals, int widest = 10);

/// The number with four decimals, or with as many more as it takes to tell from the text on which
/// side of the limit it lies, or that it lies at the limit. What differs by the rounding of the
/// arithmetic alone lies at it.
std::string figure(double number, double limit);

/// The number in the fewest digits that give it back: 91 for 91.0, 0.2 for 0.2.
std::string shortest(double number);

/// The text in lines of at most 100 characters: the first begins with two blanks, the others with
/// four. A word that is longer has a line of its own.
std::vector<std::string> wrapped(std::string_view text);

struct Fact {
  std::string label, value;
};

/// "  label:              value", the form of all single facts.
std::string factLine(const Fact& fact);

}  // namespace korventally::engine
