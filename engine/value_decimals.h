// The fast way of ValueRow for fixed decimals: values of any width, two at a time.
#pragma once

#include <cstddef>
#include <string_view>

namespace korventally::engine {

/// Values like "0.00123" and "1234.56789" that all have equally many decimals, parted by any
/// mixture of blanks, tabs and single commas. All may have one and the same exponent behind them:
/// "1234.56789E-06". value_decimals_sse2.cpp or, where the processor has no SSE2, value_plain.cpp
/// stand behind it; the plain one takes nothing.
class ValueDecimals {
 public:
  /// Takes over the number of decimals of a value, if it is 1 to 12, and its exponent: the empty
  /// text, or one like "E-06" of which values as small as 1E-22 result.
  void learn(int decimals, std::string_view exponent);

  /// Adds values as ValueShape::add() does, two by two, as long as they have so many decimals, that
  /// exponent and at most fourteen digits. False when one is larger than kLargestValue.
  bool add(const char*& at, const char* lineEnd, double*& sum, double* end) const;

 private:
  template <bool HasExponent>
  bool addAll(const char*& at, const char* lineEnd, double*& sum, double* end) const;

  [[maybe_unused]] std::size_t decimals_ = 0;  // 0: none learnt
  [[maybe_unused]] int power_ = 0;             // of ten, that the exponent divides by
  [[maybe_unused]] char exponent_[4] = {};     // a first byte of 0: none
};

}  // namespace korventally::engine
