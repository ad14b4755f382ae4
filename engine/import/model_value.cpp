#include "engine/import/model_value.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "engine/import/row_layout.h"
#include "engine/text.h"
#include "engine/value_row.h"

namespace korventally::engine {
namespace {

// Where the exponent of a number begins, with its letter or its sign; npos without one.
std::size_t exponentOf(std::string_view number) {
  const std::size_t letter = number.find_first_of("Ee");
  return letter != number.npos ? letter : number.find_first_of("+-", 1);
}

// "E-06"; at least two digits, as everyone else writes it.
std::string exponentText(int exponent) {
  const std::string digits = std::to_string(std::abs(exponent));
  return std::string(exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

// In g/m**3 at most what a concentration file may hold.
bool isTooLarge(double value, ValueUnit unit) {
  return value > (unit == ValueUnit::kMicrograms ? 1e6 : 1) * kLargestValue;
}

void append(std::string_view number, ValueUnit unit, std::string& line) {
  line += ' ';
  if (unit == ValueUnit::kGrams) {
    line += number;
    return;
  }
  const std::size_t place = exponentOf(number);
  line += number.substr(0, place);
  int exponent = 0;
  if (place != number.npos) {
    const std::size_t digits = number.find_first_not_of("Ee+", place);
    std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
  }
  line += exponentText(exponent - 6);
}

}  // namespace

ValueFault copyOtherValue(std::string_view field, ValueUnit unit, std::string& line,
                          double& number) {
  std::string_view text = withoutBlanks(field);
  if (text.find('*') != text.npos) return ValueFault::kStars;
  const std::optional<double> value = parseModelNumber(text);
  if (!value) return ValueFault::kNoNumber;
  if (*value < 0) return ValueFault::kNegative;
  if (isTooLarge(*value, unit)) return ValueFault::kTooLarge;
  if (text.starts_with('-')) text.remove_prefix(1);
  append(text, unit, line);
  number = std::abs(*value);
  return ValueFault::kNone;
}

ValueFault copyValue(double value, ValueUnit unit, std::string& line) {
  if (!std::isfinite(value)) return ValueFault::kNoNumber;
  if (value < 0) return ValueFault::kNegative;
  if (isTooLarge(value, unit)) return ValueFault::kTooLarge;
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific);
  append({text, static_cast<std::size_t>(end.ptr - text)}, unit, line);
  return ValueFault::kNone;
}

}  // namespace korventally::engine
