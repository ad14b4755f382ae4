// The fast way of ValueRow for fixed decimals: values of any width, several at a time.
#pragma once

#include <cstddef>
#include <string_view>

namespace korventally::engine {

/// What all values have that are read at once.
struct DecimalForm {
  std::size_t decimals = 0;  // 0: none learnt
  int power = 0;             // of ten, that the exponent divides by
  char exponent[4] = {};     // a first byte of 0: none
};

/// Values like "0.00123" and "1234.56789" that all have equally many decimals, parted by any
/// mixture of blanks, tabs and single commas. All may have one and the same exponent behind them:
/// "1234.56789E-06". value_decimals_x86.cpp or, where the processor has no SSE2, value_plain.cpp
/// stand behind it; the plain one takes nothing.
class ValueDecimals {
 public:
  /// Takes over the number of decimals of a value, if it is 1 to 12, and its exponent: the empty
  /// text, or one like "E-06" of which values as small as 1E-22 result.
  void learn(int decimals, std::string_view exponent);

  /// Adds values as ValueShape::add() does, as long as they have so many decimals, that exponent
  /// and at most fourteen digits. False when one is larger than kLargestValue.
  bool add(const char*& at, const char* lineEnd, double*& sum, double* end) const;

 private:
  [[maybe_unused]] DecimalForm form_;
};

}  // namespace korventally::engine
