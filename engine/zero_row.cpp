#include "engine/zero_row.h"

#include <cstddef>
#include <cstring>
#include <string_view>

#include "engine/fields.h"

namespace korventally::engine {
namespace {

bool isSeparator(char c) { return c == ' ' || c == '\t' || c == ','; }

// Plain loops: this is asked of every line of every file. An exponent may stand behind a sign
// alone: "0.123456-103".
bool isZero(std::string_view field) {
  for (std::size_t i = 0; i < field.size(); ++i) {
    const char c = field[i];
    if (c >= '1' && c <= '9') return false;
    if (c == 'E' || c == 'e' || (i > 0 && (c == '-' || c == '+'))) return true;
  }
  return true;
}

std::string_view lastField(std::string_view values) {
  std::size_t end = values.size();
  while (end > 0 && isSeparator(values[end - 1])) --end;
  std::size_t begin = end;
  while (begin > 0 && !isSeparator(values[begin - 1])) --begin;
  return values.substr(begin, end - begin);
}

bool repeats(std::string_view rest, std::size_t size, std::size_t times) {
  return rest.size() > size * (times + 1) &&
         std::memcmp(rest.data(), rest.data() + size, size * times) == 0;
}

// Passes over what repeats the first `size` bytes of `rest`, which are a separator and a zero: rows
// of zeros look alike over long stretches. The last of them is left for the next look.
void skipRepeats(std::size_t size, std::string_view& rest) {
  for (const std::size_t times : {32, 6, 1}) {
    while (repeats(rest, size, times)) rest.remove_prefix(size * times);
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
    skipRepeats(static_cast<std::size_t>(fields.rest().data() - rest.data()), rest);
    // It may go on behind what repeats: " 0" is also the beginning of " 05".
    Fields last = Fields::continuing(rest);
    last.next(field);
    if (!isZero(field)) return false;
    rest = last.rest();
  }
}

}  // namespace korventally::engine
