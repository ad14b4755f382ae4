#include "engine/value_decimals_x86.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "engine/value_decimals.h"

namespace korventally::engine {

void ValueDecimals::learn(int decimals, std::string_view exponent) {
  if (decimals < 1 || decimals > kMostDecimals) return;
  int power = 0;
  if (!exponent.empty()) {
    if (exponent.size() != sizeof form_.exponent || exponent[1] != '-') return;
    power = 10 * (exponent[2] - '0') + exponent[3] - '0';
    if (decimals + power > kLargestExact) return;
  }
  form_ = {static_cast<std::size_t>(decimals), power, {}};
  std::ranges::copy(exponent, form_.exponent);
}

bool ValueDecimals::add(const char*& at, const char* lineEnd, double*& sum, double* end) const {
  if (form_.decimals == 0) return true;
  return (hasAvx2() ? addByAvx2 : addBySse2)(form_, at, lineEnd, sum, end);
}

}  // namespace korventally::engine
