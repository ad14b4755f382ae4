// Values as a dispersion model prints them, copied into a concentration file digit by digit.
#pragma once

#include <string>
#include <string_view>

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
  kNoNumber,
};

/// Adds a value of a formatted file to `line`: a blank, the very digits, and the exponent lowered
/// by six where the unit asks for it, so that nothing is rounded. `field` may have blanks around
/// it; `number` becomes the value in the file's unit. A zero loses its sign. With a fault neither
/// changes.
ValueFault copyValue(std::string_view field, ValueUnit unit, std::string& line, double& number);

/// The same for a value of an unformatted file: the fewest digits that give it back.
ValueFault copyValue(double value, ValueUnit unit, std::string& line);

}  // namespace korventally::engine
