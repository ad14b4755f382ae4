// Values as a dispersion model prints them, copied into a concentration file digit by digit.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "engine/import/fixed_value.h"

namespace korventally::engine {

/// What the values of a model's files are in.
enum class ValueUnit {
  kMicrograms,  ///< ug/m**3, what a model writes unless it was told otherwise
  kGrams,       ///< g/m**3, the unit of concentration files
};

/// What may be wrong with a value.
enum class ValueFault {
  kNone,
  kStars,     ///< it did not fit into its column
  kNegative,  ///< an increment credit
  kTooLarge,  ///< the engine would not read it
  kNoNumber,
};

/// What to say behind "negative, " of such a value.
inline constexpr const char* kOfCredits =
    "an increment credit. Leave such sources out of the model's groups: concentrations below zero "
    "are not judged.";

/// What to say of one that is too large.
inline constexpr const char* kOfLargeValues = " is more than the engine takes for a concentration.";

/// copyValue() for any form of number.
ValueFault copyOtherValue(std::string_view field, ValueUnit unit, std::string& line,
                          double& number);

/// Adds a value that is printed as F13.5, as copyValue() does; false, and nothing is added, for any
/// other form.
inline bool copyFixedValue(std::string_view field, ValueUnit unit, std::string& line,
                           double& number) {
  if (field.size() != kFixedWidth) return false;
  const FixedValue value = fixedValue(field.data());
  if (value.digits < 0) return false;
  // Copied whole, so that its length is no question; what is wanted begins at the last blank.
  constexpr std::array kToGrams = {'E', '-', '0', '6'};
  char text[1 + kFixedWidth + kToGrams.size()] = " ";
  std::memcpy(text + 1, field.data(), kFixedWidth);
  std::memcpy(text + 1 + kFixedWidth, kToGrams.data(), kToGrams.size());
  const std::size_t exponent = unit == ValueUnit::kMicrograms ? kToGrams.size() : 0;
  line.append(text + value.blanks, 1 + kFixedWidth - value.blanks + exponent);
  number = static_cast<double>(value.digits) / 1e5;
  return true;
}

/// Adds a value of a formatted file to `line`: a blank, the very digits, and the exponent lowered
/// by six where the unit asks for it, so that nothing is rounded. `field` may have blanks around
/// it; `number` becomes the value in the file's unit. A zero loses its sign. With a fault neither
/// changes.
inline ValueFault copyValue(std::string_view field, ValueUnit unit, std::string& line,
                            double& number) {
  return copyFixedValue(field, unit, line, number) ? ValueFault::kNone
                                                   : copyOtherValue(field, unit, line, number);
}

/// The same for a value of an unformatted file: the fewest digits that give it back.
ValueFault copyValue(double value, ValueUnit unit, std::string& line);

}  // namespace korventally::engine
