#include "engine/value_row.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "engine/fields.h"
#include "engine/text.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace korventally::engine {

namespace {

static_assert(std::endian::native == std::endian::little, "the digit tricks below rely on it");

constexpr std::size_t kMostDecimals = 7;
constexpr std::size_t kRestOfShape = 6;  // a digit and the point in front, the exponent behind

using Bytes = std::uint8_t __attribute__((vector_size(16)));

// A form that a value and its separator may have, byte by byte: " d.ddddE-dd" with so many
// decimals, a blank or a comma in front, and "E" or "e".
struct Shape {
  // From the separator to the byte behind the value, and no matter what after that. What exactly
  // stands behind is left to the next value, or the end of the line.
  Bytes least{};
  Bytes span{};  // largest minus least
  std::size_t decimals = 0;
  unsigned spare_bits = 0;  // of eight digits, those that this shape does not have
  // The digits divided by powers[4 * e + sign] are the value; sign is 2 for exponent -e and 0 for
  // +e, the distances of "-" and "+" from "+". Powers of ten up to 10**22 are exact doubles, so
  // the one division rounds once, and correctly. -1 stands for all others, and for the "," between
  // "+" and "-": a value below zero is not taken.
  std::array<double, 400> powers{};
};

// Where the characters "+00" would lead if they counted as they are.
constexpr std::size_t kFirstPower = 40 * '0' + 4 * '0' + '+';

double PowerAt(std::size_t decimals, int index) {
  const int k = static_cast<int>(decimals), e = index / 4, sign = index % 4;
  const int power = sign == 0 ? k - e : k + e;
  if (power < 0 || power > 22 || (sign != 0 && sign != 2)) return -1;
  double number = 1;
  for (int i = 0; i < power; ++i) number *= 10;
  return number;
}

Shape MakeShape(std::size_t decimals, char separator, char mark) {
  Shape shape;
  shape.decimals = decimals;
  shape.spare_bits = 8 * static_cast<unsigned>(kMostDecimals - decimals);
  std::string least = {separator, '0', '.'}, most = {separator, '9', '.'};
  least += std::string(decimals, '0') + mark + std::string("+00\0", 4);
  most += std::string(decimals, '9') + mark + std::string("-99,", 4);
  for (std::size_t i = 0; i < 16; ++i) {
    shape.least[i] = static_cast<std::uint8_t>(i < least.size() ? least[i] : 0);
    shape.span[i] = static_cast<std::uint8_t>(i < least.size() ? most[i] - least[i] : 255);
  }
  for (int i = 0; i < 400; ++i) {
    shape.powers[static_cast<std::size_t>(i)] = PowerAt(decimals, i);
  }
  return shape;
}

// Numbered as ShapeOf() counts, from 1 on; 0 stands for no shape.
const std::vector<Shape>& Shapes() {
  static const std::vector<Shape> shapes = [] {
    std::vector<Shape> all(1);
    for (const char separator : {' ', ','}) {
      for (const char mark : {'E', 'e'}) {
        for (std::size_t k = 1; k <= kMostDecimals; ++k) {
          all.push_back(MakeShape(k, separator, mark));
        }
      }
    }
    return all;
  }();
  return shapes;
}

// The number of the shape of a field like "d.dddE-dd", else 0.
std::size_t ShapeOf(char separator, std::string_view field) {
  const std::size_t decimals = field.size() - kRestOfShape;
  if (field.size() <= kRestOfShape || decimals > kMostDecimals || field[1] != '.') return 0;
  const char mark = field[field.size() - 4];
  if (mark != 'E' && mark != 'e') return 0;
  return decimals + (mark == 'e' ? kMostDecimals : 0) + (separator == ',' ? 2 * kMostDecimals : 0);
}

template <typename Word>
Word Load(const char* from) {
  Word word;
  std::memcpy(&word, from, sizeof word);
  return word;
}

inline bool Matches(const char* text, const Bytes& least, const Bytes& span) {
  const auto fits = (Load<Bytes>(text) - least) <= span;
#if defined(__SSE2__)
  // One instruction that the compiler does not find by itself: a tenth of the engine's time.
  return _mm_movemask_epi8(std::bit_cast<__m128i>(fits)) == 0xFFFF;
#else
  std::uint64_t halves[2];
  std::memcpy(halves, &fits, sizeof halves);
  return (halves[0] & halves[1]) == ~std::uint64_t{0};
#endif
}

// Eight digits, the first in the lowest byte, as a number: pairs, then fours, then all eight.
inline std::uint64_t EightDigits(std::uint64_t digits) {
  digits = (digits & 0x0F0F0F0F0F0F0F0F) * 2561 >> 8;
  digits = (digits & 0x00FF00FF00FF00FF) * 6553601 >> 16;
  return (digits & 0x0000FFFF0000FFFF) * 42949672960001 >> 32;
}

// Adds values as long as they have this shape; `at` and `sum` stand behind the last one then.
// A text of eight digits divided by 1 or more stays below kLargestValue.
void AddShaped(const Shape& shape, const char*& at, double*& sum, double* const end) {
  const Bytes least = shape.least, span = shape.span;
  const std::size_t decimals = shape.decimals;
  const unsigned spare_bits = shape.spare_bits;
  const double* const powers = shape.powers.data();
  const char* text = at;
  double* to = sum;
  while (to != end && Matches(text, least, span)) {
    // The digit before the point and those behind it, side by side, with zeros in front.
    const std::uint64_t packed = Load<std::uint64_t>(text + 3) << 8 | (text[1] & 0xFF);
    const auto exponent = Load<std::uint32_t>(text + 3 + decimals);
    const std::size_t sign = exponent >> 8 & 0xFF;
    const std::size_t tens = exponent >> 16 & 0xFF;
    const std::size_t ones = exponent >> 24;
    const auto digits = static_cast<std::int64_t>(EightDigits(packed << spare_bits));
    const double value =
        static_cast<double>(digits) / powers[40 * tens + 4 * ones + sign - kFirstPower];
    if (!(value >= 0)) break;
    *to++ += value;
    text += decimals + kRestOfShape + 1;
  }
  at = text;
  sum = to;
}

bool IsConcentration(std::string_view field, double& value) {
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, value);
  return error == std::errc{} && stop == end && value >= 0 && value <= kLargestValue;
}

}  // namespace

bool ValueRow::AddTo(std::span<double> sums, std::string_view values) {
  const std::vector<Shape>& shapes = Shapes();
  const char* at = values.data();
  const char* const line_end = at + values.size();
  double* sum = sums.data();
  double* const end = sum + sums.size();
  while (sum != end) {
    if (shape_ != 0) {
      AddShaped(shapes[shape_], at, sum, end);
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
