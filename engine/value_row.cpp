#include "engine/value_row.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "engine/fields.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

static_assert(std::endian::native == std::endian::little, "the digit tricks below rely on it");

constexpr std::size_t kMostDecimals = 7;
constexpr std::size_t kRestOfShape = 6;  // a digit and the point in front, the exponent behind

// A shape is a number of decimals, plus kLowerCase when the exponent is marked by "e", not "E".
constexpr std::size_t kLowerCase = kMostDecimals + 1;
constexpr std::size_t kShapes = 2 * kLowerCase;

// Powers[k][100 * sign + e] turns the digits of a number with k decimals into its value by a
// division; sign is 2 for exponent -e and 0 for +e, the distances of "-" and "+" from "+". Powers
// of ten up to 10**22 are exact doubles, so the one division rounds once, and correctly. -1 stands
// for all others, and for the "," between "+" and "-": a value below zero is taken back.
using Powers = std::array<std::array<double, 300>, kMostDecimals + 1>;

constexpr Powers MakePowers() {
  Powers powers{};
  for (int k = 0; k <= static_cast<int>(kMostDecimals); ++k) {
    for (int e = 0; e < 300; ++e) {
      const int power = e < 100 ? k - e : k + e - 200;
      double& number = powers[static_cast<std::size_t>(k)][static_cast<std::size_t>(e)];
      number = power >= 0 && power <= 22 && (e < 100 || e >= 200) ? 1 : -1;
      for (int i = 0; i < power && number > 0; ++i) number *= 10;
    }
  }
  return powers;
}

constexpr Powers kPowers = MakePowers();

// The bytes that a value may have, place by place, from the blank or comma before it to the byte
// behind it. What exactly stands behind is left to the next value, or the end of the line.
using Bytes = std::uint8_t __attribute__((vector_size(16)));

struct ByteRanges {
  Bytes least{};
  Bytes span{};  // largest minus least
};

constexpr std::array<ByteRanges, kShapes> MakeRanges() {
  std::array<ByteRanges, kShapes> all{};
  for (std::size_t shape = 0; shape < kShapes; ++shape) {
    const std::size_t k = shape % kLowerCase;
    const char mark = shape < kLowerCase ? 'E' : 'e';
    std::uint8_t least[16] = {' ', '0', '.'};
    std::uint8_t most[16] = {',', '9', '.'};
    for (std::size_t i = 3; i < 16; ++i) {
      least[i] = i < k + 3 ? '0' : 0;
      most[i] = i < k + 3 ? '9' : 255;
    }
    const char tail[2][5] = {{mark, '+', '0', '0', 0}, {mark, '-', '9', '9', ','}};
    for (std::size_t i = 0; i < 5; ++i) {
      least[k + 3 + i] = static_cast<std::uint8_t>(tail[0][i]);
      most[k + 3 + i] = static_cast<std::uint8_t>(tail[1][i]);
    }
    for (std::size_t i = 0; i < 16; ++i) {
      all[shape].least[i] = least[i];
      all[shape].span[i] = static_cast<std::uint8_t>(most[i] - least[i]);
    }
  }
  return all;
}

const std::array<ByteRanges, kShapes> kRanges = MakeRanges();

template <typename Word>
Word Load(const char* from) {
  Word word;
  std::memcpy(&word, from, sizeof word);
  return word;
}

inline bool Matches(const char* text, const ByteRanges& ranges) {
  const auto fits = (Load<Bytes>(text) - ranges.least) <= ranges.span;
  std::uint64_t halves[2];
  std::memcpy(halves, &fits, sizeof halves);
  return (halves[0] & halves[1]) == ~std::uint64_t{0};
}

// Eight digits, the first in the lowest byte, as a number: pairs, then fours, then all eight.
inline std::uint64_t EightDigits(std::uint64_t digits) {
  digits = (digits & 0x0F0F0F0F0F0F0F0F) * 2561 >> 8;
  digits = (digits & 0x00FF00FF00FF00FF) * 6553601 >> 16;
  return (digits & 0x0000FFFF0000FFFF) * 42949672960001 >> 32;
}

// The value of a text that Matches(): " d.dddE-dd". Negative when this way cannot give it.
inline double ShapedNumber(const char* text, std::size_t decimals, const double* powers) {
  const unsigned spare = 8 * static_cast<unsigned>(kMostDecimals - decimals);
  // The digit before the point and those behind it, side by side, with zeros in front.
  const std::uint64_t packed = Load<std::uint64_t>(text + 3) << 8 | (text[1] & 0xFF);
  const auto exponent = Load<std::uint32_t>(text + 3 + decimals);
  const std::size_t sign = (exponent >> 8 & 0xFF) - '+';
  const std::size_t tens = exponent >> 16 & 0x0F;
  const std::size_t ones = exponent >> 24 & 0x0F;
  const std::uint64_t digits = EightDigits(packed << spare);
  return static_cast<double>(static_cast<std::int64_t>(digits)) /
         powers[100 * sign + 10 * tens + ones];
}

// The shape of a field like "d.dddE-dd", else 0.
std::size_t ShapeOf(std::string_view field) {
  const std::size_t decimals = field.size() - kRestOfShape;
  if (field.size() <= kRestOfShape || decimals > kMostDecimals || field[1] != '.') return 0;
  const char mark = field[field.size() - 4];
  return mark == 'E' ? decimals : mark == 'e' ? decimals + kLowerCase : 0;
}

bool IsConcentration(std::string_view field, double& value) {
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, value);
  return error == std::errc{} && stop == end && value >= 0 && value <= kLargestValue;
}

}  // namespace

bool ValueRow::AddTo(std::span<double> sums, std::string_view values) {
  const char* at = values.data();
  const char* const end = at + values.size();
  std::size_t shape = shape_;
  for (double& sum : sums) {
    // The usual separator is one blank before a digit; a row of blanks is common too.
    while (at[0] == ' ' && at[1] == ' ') ++at;
    if (shape != 0 && Matches(at, kRanges[shape]) && (at[0] == ' ' || at[0] == ',')) [[likely]] {
      const std::size_t decimals = shape % kLowerCase;
      const double value = ShapedNumber(at, decimals, kPowers[decimals].data());
      // Eight digits divided by 1 or more stay below kLargestValue.
      if (value >= 0) [[likely]] {
        sum += value;
        at += decimals + kRestOfShape + 1;
        continue;
      }
    }
    Fields fields = Fields::Continuing({at, static_cast<std::size_t>(end - at)});
    std::string_view field;
    double value = 0;
    if (!fields.Next(field) || !IsConcentration(field, value)) return false;
    sum += value;
    shape = ShapeOf(field);
    at = fields.rest().data();
  }
  shape_ = shape;
  return IsBlank({at, static_cast<std::size_t>(end - at)});
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
