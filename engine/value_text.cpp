#include "engine/value_text.h"

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace korventally::engine {
namespace {

constexpr std::uint64_t kMostExact = std::uint64_t{1} << 53;

// All of them are exact doubles.
constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                              1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                              1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kLargestPower = 22;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// The digits at the front of the text, added to the number; returns how many there are.
int takeDigits(std::string_view& text, std::uint64_t& number) {
  std::size_t count = 0;
  for (; count < text.size() && isDigit(text[count]); ++count) {
    number = 10 * number + static_cast<std::uint64_t>(text[count] - '0');
  }
  text.remove_prefix(count);
  return static_cast<int>(count);
}

// "E-05", "e5" or nothing; false for anything else.
bool takeExponent(std::string_view text, int& power) {
  if (text.empty()) return true;
  if ((text[0] | 0x20) != 'e') return false;
  text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  std::uint64_t number = 0;
  if (text.size() > 3 || takeDigits(text, number) == 0 || !text.empty()) return false;
  power += negative ? -static_cast<int>(number) : static_cast<int>(number);
  return true;
}

}  // namespace

std::optional<UsualDecimal> usualDecimal(std::string_view text) {
  constexpr std::size_t kLongest = 18 + 1 + 5;
  // Where products are computed with more digits than a double has, they would be rounded twice.
  if (FLT_EVAL_METHOD != 0 || text.size() > kLongest) return std::nullopt;
  std::uint64_t digits = 0;
  int count = takeDigits(text, digits), decimals = 0;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    decimals = takeDigits(text, digits);
    count += decimals;
  }
  int power = -decimals;
  const std::string_view exponent = text;
  if (count == 0 || count > 18 || digits > kMostExact || !takeExponent(text, power)) {
    return std::nullopt;
  }
  if (power < -kLargestPower || power > kLargestPower) return std::nullopt;
  const auto number = static_cast<double>(static_cast<std::int64_t>(digits));
  // Both are exact, so the one division or multiplication rounds once, and correctly.
  return UsualDecimal{power < 0 ? number / kPowers[-power] : number * kPowers[power], decimals,
                      exponent};
}

}  // namespace korventally::engine
