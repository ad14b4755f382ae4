#include "engine/value_row.h"

#include <charconv>
#include <cmath>
#include <string>
#include <vector>

#include "engine/fields.h"
#include "engine/text.h"
#include "engine/value_shape.h"

namespace korventally::engine {

namespace {

bool IsConcentration(std::string_view field, double& value) {
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, value);
  return error == std::errc{} && stop == end && value >= 0 && value <= kLargestValue;
}

}  // namespace

bool ValueRow::AddTo(std::span<double> sums, std::string_view values) {
  const char* at = values.data();
  const char* const line_end = at + values.size();
  double* sum = sums.data();
  double* const end = sum + sums.size();
  while (sum != end) {
    if (shape_ != 0) {
      AddShaped(shape_, at, sum, end);
      if (sum == end) break;
    }
    if (at[0] == ' ' && at[1] == ' ') {
      ++at;  // a row of blanks
      continue;
    }
    Fields fields = Fields::Continuing({at, static_cast<std::size_t>(line_end - at)});
    std::string_view field;
    double value = 0;
    if (!fields.Next(field) || !IsConcentration(field, value)) return false;
    *sum++ += value;
    shape_ = ShapeOf(field.data()[-1], field);
    at = fields.rest().data();
  }
  return IsBlank({at, static_cast<std::size_t>(line_end - at)});
}

std::string ExplainValues(std::string_view values, std::size_t expected) {
  Fields fields = Fields::Continuing(values);
  std::size_t count = 0;
  for (std::string_view field; fields.Next(field);) {
    ++count;
    double value = 0;
    if (IsConcentration(field, value)) continue;
    const bool negative = field.size() > 1 && field.front() == '-' && ParseDecimal(field);
    return ", value " + std::to_string(count) + " is " + Quoted(field) + ", which is " +
           (negative              ? "negative"
            : ParseDecimal(field) ? "larger than any concentration"
                                  : "not a number");
  }
  return " holds " + Counted(count, "value") + " instead of " + Grouped(expected) +
         ", one for each receptor";
}

}  // namespace korventally::engine
