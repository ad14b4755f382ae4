#include "engine/zero_row.h"

#include <cstddef>
#include <cstring>
#include <string_view>

#include "engine/fields.h"

namespace korventally::engine {
namespace {

// Exponents may stand behind a sign alone: "0.123456-103".
bool isZero(std::string_view field) {
  return field.substr(0, field.find_first_of("eE+-", 1)).find_first_of("123456789") == field.npos;
}

std::string_view lastField(std::string_view values) {
  const std::size_t end = values.find_last_not_of(" \t") + 1;
  values = values.substr(0, end);
  return values.substr(values.find_last_of(" \t,") + 1);
}

// Passes over all that repeats `sample`: rows of zeros look alike from end to end.
void skipRepeats(std::string_view sample, std::string_view& rest) {
  const std::size_t size = sample.size();
  while (rest.size() > size && std::memcmp(rest.data(), sample.data(), size) == 0 &&
         (rest[size] == ' ' || rest[size] == '\t' || rest[size] == ',')) {
    rest.remove_prefix(size);
  }
}

}  // namespace

bool isZeroRow(std::string_view values) {
  if (!isZero(lastField(values))) return false;
  std::string_view rest = values;
  for (;;) {
    Fields fields = Fields::continuing(rest);
    std::string_view field;
    if (!fields.next(field)) return true;
    if (!isZero(field)) return false;
    // The separator in front belongs to what repeats.
    const auto size = static_cast<std::size_t>(fields.rest().data() - rest.data());
    const std::string_view sample = rest.substr(0, size);
    rest = fields.rest();
    skipRepeats(sample, rest);
  }
}

}  // namespace korventally::engine
