#include "engine/value_row.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "engine/fields.h"
#include "engine/text.h"
#include "engine/value_shape.h"

namespace korventally::engine {
namespace {

bool isConcentration(std::string_view field, double& value) {
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, value);
  return error == std::errc{} && stop == end && value >= 0 && value <= kLargestValue;
}

}  // namespace

bool ValueRow::addTo(std::span<double> sums, std::string_view values) {
  const char* at = values.data();
  const char* const lineEnd = at + values.size();
  double* sum = sums.data();
  double* const end = sum + sums.size();
  while (sum != end) {
    if (shape_ != 0) {
      addShaped(shape_, at, sum, end);
      if (sum == end) break;
    }
    if (at[0] == ' ' && at[1] == ' ') {
      ++at;  // a row of blanks
      continue;
    }
    Fields fields = Fields::continuing({at, static_cast<std::size_t>(lineEnd - at)});
    std::string_view field;
    double value = 0;
    if (!fields.next(field) || !isConcentration(field, value)) return false;
    *sum++ += value;
    shape_ = shapeOf(field.data()[-1], field);
    at = fields.rest().data();
  }
  return isBlank({at, static_cast<std::size_t>(lineEnd - at)});
}

std::string explainValues(std::string_view values, std::size_t expected) {
  Fields fields = Fields::continuing(values);
  std::size_t count = 0;
  for (std::string_view field; fields.next(field);) {
    ++count;
    double value = 0;
    if (isConcentration(field, value)) continue;
    const bool negative = field.size() > 1 && field.front() == '-' && parseDecimal(field);
    return ", value " + std::to_string(count) + " is " + inQuotes(field) + ", which is " +
           (negative              ? "negative"
            : parseDecimal(field) ? "larger than any concentration"
                                  : "not a number");
  }
  return " holds " + counted(count, "value") + " instead of " + grouped(expected) +
         ", one for each receptor";
}

}  // namespace korventally::engine
