// The usual decimal numbers, read exactly in plain C++ on any processor.
#pragma once

#include <optional>
#include <string_view>

namespace korventally::engine {

struct UsualDecimal {
  double number = 0;
  int decimals = 0;           ///< behind the point
  std::string_view exponent;  ///< "E-05", with its letter; empty without one
};

/// The number that fills the whole text, correctly rounded as std::from_chars rounds, if it has no
/// sign, at most 18 digits that make no more than 2**53 and, after its decimals are moved into the
/// exponent, a power of ten from -22 to 22: "0.000012", "7", "1.2e-5". Nothing for all others,
/// whether they are numbers or not.
std::optional<UsualDecimal> usualDecimal(std::string_view text);

}  // namespace korventally::engine
