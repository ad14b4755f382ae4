// The hot loop of the engine: the values of one hour, added to the sums of the receptors.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace korventally::engine {

/// Larger values, in g/m**3, are no concentrations of anything; they are refused as unreadable.
inline constexpr double kLargestValue = 1e9;

/// Reads lines whose values usually look alike. Once a value of the form "1.23456E-05" was met,
/// values of that very shape are read two at a time (value_shape.h); every other value goes through
/// std::from_chars. Both ways give the same, correctly rounded double.
class ValueRow {
 public:
  /// Adds as many values as `sums` has room for. `values` begins with a separator, must be followed
  /// by '\r' or '\n' and then by LineReader::kPadding readable bytes. False when there are more or
  /// fewer values, or one that is no number from 0 to kLargestValue; `sums` is then spoilt.
  bool addTo(std::span<double> sums, std::string_view values);

 private:
  std::size_t shape_ = 0;  ///< of the value last read by std::from_chars; 0: none of its own
};

/// What is wrong with values that addTo() refused, to follow "The file F, line N": for example
/// " holds 24 values instead of 25".
std::string explainValues(std::string_view values, std::size_t expected);

}  // namespace korventally::engine
