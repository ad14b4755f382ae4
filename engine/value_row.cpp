#include "engine/value_row.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "engine/fields.h"
#include "engine/text.h"
#include "engine/value_text.h"

namespace korventally::engine {
namespace {

bool isConcentration(std::string_view field, double& value) {
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, value);
  if (error != std::errc{} || stop != end) {
    const std::optional<double> number = parseModelNumber(field);
    if (!number) return false;
    value = *number;
  }
  return value >= 0 && value <= kLargestValue;
}

}  // namespace

bool ValueRow::addTo(std::span<double> sums, std::string_view values) {
  const char* at = values.data();
  const char* const lineEnd = at + values.size();
  double* sum = sums.data();
  double* const end = sum + sums.size();
  while (sum != end) {
    if (!addAlike(at, lineEnd, sum, end)) return false;
    if (sum == end) break;
    if (!addNext(at, lineEnd, *sum)) return false;
    ++sum;
  }
  return isBlank({at, static_cast<std::size_t>(lineEnd - at)});
}

// As many values as look like earlier ones. Where no two look alike, trying costs more than it
// saves: the longer in vain, the more values are let pass.
bool ValueRow::addAlike(const char*& at, const char* lineEnd, double*& sum, double* end) {
  constexpr int kMostPasses = 63;
  if (passes_ > 0) {
    --passes_;
    return true;
  }
  const double* const before = sum;
  shape_.add(at, lineEnd, sum, end);
  if (!decimals_.add(at, lineEnd, sum, end)) return false;
  misses_ = sum == before ? std::min(2 * misses_ + 1, kMostPasses) : 0;
  passes_ = misses_;
  return true;
}

// One value of any form; `at` then stands behind it.
bool ValueRow::addNext(const char*& at, const char* lineEnd, double& sum) {
  Fields fields = Fields::continuing({at, static_cast<std::size_t>(lineEnd - at)});
  std::string_view field;
  if (!fields.next(field)) return false;
  double value = 0;
  if (const std::optional<UsualDecimal> usual = usualDecimal(field)) {
    value = usual->number;
    if (value > kLargestValue) return false;
    if (!usual->exponent.empty()) {
      shape_.learn({at, static_cast<std::size_t>(field.data() - at)}, field);
    }
    learnDecimals(*usual, field.size());
  } else if (!isConcentration(field, value)) {
    return false;
  }
  sum += value;
  at = fields.rest().data();
  return true;
}

// An exponent that comes back with a value of another width is one that all values have; where the
// widths are alike, ValueShape reads all exponents faster.
void ValueRow::learnDecimals(const UsualDecimal& value, std::size_t width) {
  const bool comesBack =
      value.exponent == std::string_view(exponent_, value.exponent.size()) && width != width_;
  if (value.exponent.empty() || comesBack) decimals_.learn(value.decimals, value.exponent);
  if (value.exponent.size() <= sizeof exponent_) std::ranges::copy(value.exponent, exponent_);
  width_ = width;
}

std::string explainValues(std::string_view values, std::size_t expected) {
  Fields fields = Fields::continuing(values);
  std::size_t count = 0;
  for (std::string_view field; fields.next(field);) {
    ++count;
    double value = 0;
    if (isConcentration(field, value)) continue;
    const bool isNumber = parseModelNumber(field).has_value();
    const bool negative = isNumber && field.front() == '-';
    return ", value " + std::to_string(count) + " is " + inQuotes(field) + ", which is " +
           (negative   ? "negative"
            : isNumber ? "larger than any concentration"
                       : "not a number");
  }
  return " holds " + counted(count, "value") + " instead of " + grouped(expected) +
         ", one for each receptor";
}

}  // namespace korventally::engine
