// The hot loop of the engine: the values of one hour, added to the sums of the receptors.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "engine/value_decimals.h"
#include "engine/value_shape.h"
#include "engine/value_text.h"

namespace korventally::engine {

/// Larger values, in g/m**3, are no concentrations of anything; they are refused as unreadable.
inline constexpr double kLargestValue = 1e9;

/// Reads lines whose values usually look alike. Once a value like "1.23456E-05" was met, values of
/// that very shape are read two at a time (value_shape.h), and once one like "0.00123" was met,
/// values with as many decimals (value_decimals.h); every other value is read by itself. All ways
/// give the same, correctly rounded double as std::from_chars.
class ValueRow {
 public:
  /// Adds as many values as `sums` has room for. `values` begins with a separator, must be followed
  /// by '\r' or '\n' and then by LineReader::kPadding readable bytes, of which as many stand in
  /// front of it. False when there are more or fewer values, or one that is no number from 0 to
  /// kLargestValue; `sums` is then spoilt.
  bool addTo(std::span<double> sums, std::string_view values);

 private:
  bool addAlike(const char*& at, const char* lineEnd, double*& sum, double* end);
  bool addNext(const char*& at, const char* lineEnd, double& sum);
  void learnDecimals(const UsualDecimal& value, std::size_t width);

  ValueShape shape_;
  ValueDecimals decimals_;
  char exponent_[8] = {};  // of the last value that was read by itself
  std::size_t width_ = 0;  // of that value
  int misses_ = 0;         // how often decimals_ took nothing, as the number of values to let pass
  int passes_ = 0;         // of those still to let pass
};

/// What is wrong with values that addTo() refused, to follow "The file F, line N": for example
/// " holds 24 values instead of 25".
std::string explainValues(std::string_view values, std::size_t expected);

}  // namespace korventally::engine
