// The fast way of ValueRow for fixed decimals: values of any width, two at a time.
#pragma once

#include <cstddef>

namespace korventally::engine {

/// Values like "0.00123" and "1234.56789" that all have equally many decimals, parted by any
/// mixture of blanks, tabs and single commas. value_decimals_sse2.cpp or, where the processor has
/// no SSE2, value_plain.cpp stand behind it; the plain one takes nothing.
class ValueDecimals {
 public:
  /// Takes over the number of decimals of a value without exponent, if it is 1 to 12.
  void learn(int decimals);

  /// Adds values as ValueShape::add() does, two by two, as long as they have so many decimals and
  /// at most fourteen digits. False when one of them is larger than kLargestValue.
  bool add(const char*& at, const char* lineEnd, double*& sum, double* end) const;

 private:
  [[maybe_unused]] std::size_t decimals_ = 0;  // 0: none learnt
};

}  // namespace korventally::engine
