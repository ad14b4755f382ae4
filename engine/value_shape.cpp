#include "engine/value_shape.h"

#include <emmintrin.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace korventally::engine {
namespace {

constexpr std::size_t kMostDecimals = 7;
constexpr std::size_t kRestOfShape = 6;  // a digit and the point in front, the exponent behind

// A form that a value and its separator may have, byte by byte: " d.ddddE-dd" with so many
// decimals, a blank or a comma in front, and "E" or "e".
struct Shape {
  // From the separator to the byte behind the value, and no matter what after that. What exactly
  // stands behind is left to the next value, or the end of the line.
  alignas(16) std::uint8_t least[16] = {};
  alignas(16) std::uint8_t span[16] = {};  // largest minus least
  std::size_t decimals = 0;
  unsigned spareBits = 0;  // of eight digits, those that this shape does not have
  // The digits divided by powers[4 * e + sign] are the value; sign is 2 for exponent -e and 0 for
  // +e, the distances of "-" and "+" from "+". Powers of ten up to 10**22 are exact doubles, so
  // the one division rounds once, and correctly. NaN stands for all others, and for the ","
  // between "+" and "-": a value that is none is not taken, whatever its digits.
  std::array<double, 400> powers{};
};

// Where the characters "+00" would lead if they counted as they are.
constexpr std::size_t kFirstPower = 40 * '0' + 4 * '0' + '+';

double powerAt(std::size_t decimals, int index) {
  const int k = static_cast<int>(decimals), e = index / 4, sign = index % 4;
  const int power = sign == 0 ? k - e : k + e;
  if (power < 0 || power > 22 || (sign != 0 && sign != 2)) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  double number = 1;
  for (int i = 0; i < power; ++i) number *= 10;
  return number;
}

Shape makeShape(std::size_t decimals, char separator, char mark) {
  Shape shape;
  shape.decimals = decimals;
  shape.spareBits = 8 * static_cast<unsigned>(kMostDecimals - decimals);
  std::string least = {separator, '0', '.'}, most = {separator, '9', '.'};
  least += std::string(decimals, '0') + mark + std::string("+00\0", 4);
  most += std::string(decimals, '9') + mark + std::string("-99,", 4);
  for (std::size_t i = 0; i < 16; ++i) {
    shape.least[i] = static_cast<std::uint8_t>(i < least.size() ? least[i] : 0);
    shape.span[i] = static_cast<std::uint8_t>(i < least.size() ? most[i] - least[i] : 255);
  }
  for (int i = 0; i < 400; ++i) {
    shape.powers[static_cast<std::size_t>(i)] = powerAt(decimals, i);
  }
  return shape;
}

// Numbered as shapeOf() counts, from 1 on; 0 stands for no shape.
const std::vector<Shape>& shapes() {
  static const std::vector<Shape> kShapes = [] {
    std::vector<Shape> all(1);
    for (const char separator : {' ', ','}) {
      for (const char mark : {'E', 'e'}) {
        for (std::size_t k = 1; k <= kMostDecimals; ++k) {
          all.push_back(makeShape(k, separator, mark));
        }
      }
    }
    return all;
  }();
  return kShapes;
}

// What the loop below needs of a shape, in registers.
struct Loaded {
  explicit Loaded(const Shape& shape)
      : least(_mm_load_si128(reinterpret_cast<const __m128i*>(shape.least))),
        span(_mm_load_si128(reinterpret_cast<const __m128i*>(shape.span))),
        spareBits(_mm_cvtsi32_si128(static_cast<int>(shape.spareBits))),
        exponent(3 + shape.decimals),
        length(shape.decimals + kRestOfShape + 1),
        powers(shape.powers.data()) {}

  __m128i least, span, spareBits;
  std::size_t exponent, length;
  const double* powers;
};

// All ones in the bytes that are what the shape asks for.
inline __m128i fitting(const char* text, const Loaded& shape) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
  const __m128i above = _mm_sub_epi8(bytes, shape.least);
  return _mm_cmpeq_epi8(_mm_min_epu8(above, shape.span), above);
}

inline bool all(__m128i bytes) { return _mm_movemask_epi8(bytes) == 0xFFFF; }

inline __m128i loadEight(const char* one, const char* other) {
  return _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(one)),
                            _mm_loadl_epi64(reinterpret_cast<const __m128i*>(other)));
}

// The digits of two values as two numbers: eight digits each, zeros in front, summed up in pairs,
// then fours, then all eight.
inline __m128d digits(const char* one, const char* other, const Loaded& shape) {
  const __m128i leading = _mm_and_si128(loadEight(one + 1, other + 1), _mm_set1_epi64x(0xFF));
  const __m128i packed = _mm_or_si128(_mm_slli_epi64(loadEight(one + 3, other + 3), 8), leading);
  const __m128i digits = _mm_and_si128(_mm_sll_epi64(packed, shape.spareBits), _mm_set1_epi8(0x0F));
  const __m128i tens = _mm_and_si128(digits, _mm_set1_epi16(0xFF));
  const __m128i pairs =
      _mm_add_epi16(_mm_mullo_epi16(tens, _mm_set1_epi16(10)), _mm_srli_epi16(digits, 8));
  const __m128i fours = _mm_madd_epi16(pairs, _mm_set1_epi32(1 << 16 | 100));
  const __m128i eights =
      _mm_add_epi64(_mm_mul_epu32(fours, _mm_set1_epi64x(10000)), _mm_srli_epi64(fours, 32));
  return _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 3, 2, 0)));
}

inline const double* power(const char* text, const Loaded& shape) {
  std::uint32_t exponent;
  std::memcpy(&exponent, text + shape.exponent, sizeof exponent);
  const std::size_t sign = exponent >> 8 & 0xFF;
  const std::size_t tens = exponent >> 16 & 0xFF;
  const std::size_t ones = exponent >> 24;
  return shape.powers + (40 * tens + 4 * ones + sign - kFirstPower);
}

// Two values that fit the shape; each below zero when it cannot be had this way. Eight digits
// divided by 1 or more stay below the largest concentration.
inline __m128d values(const char* one, const char* other, const Loaded& shape) {
  const __m128d powers = _mm_loadh_pd(_mm_load_sd(power(one, shape)), power(other, shape));
  return _mm_div_pd(digits(one, other, shape), powers);
}

}  // namespace

// The number of the shape of a field like "d.dddE-dd", else 0.
std::size_t shapeOf(char separator, std::string_view field) {
  const std::size_t decimals = field.size() - kRestOfShape;
  if (field.size() <= kRestOfShape || decimals > kMostDecimals || field[1] != '.') return 0;
  const char mark = field[field.size() - 4];
  if (mark != 'E' && mark != 'e') return 0;
  return decimals + (mark == 'e' ? kMostDecimals : 0) + (separator == ',' ? 2 * kMostDecimals : 0);
}

void addShaped(std::size_t number, const char*& at, double*& sum, double* const end) {
  const Loaded shape(shapes()[number]);
  const char* text = at;
  double* to = sum;
  while (end - to >= 2) {
    const char* const next = text + shape.length;
    if (!all(_mm_and_si128(fitting(text, shape), fitting(next, shape)))) break;
    const __m128d pair = values(text, next, shape);
    if (_mm_movemask_pd(_mm_cmpnge_pd(pair, _mm_setzero_pd())) != 0) break;
    _mm_storeu_pd(to, _mm_add_pd(_mm_loadu_pd(to), pair));
    to += 2;
    text = next + shape.length;
  }
  // The last of an odd number, or the one before another shape.
  if (to != end && all(fitting(text, shape))) {
    const double value = _mm_cvtsd_f64(values(text, text, shape));
    if (value >= 0) {
      *to++ += value;
      text += shape.length;
    }
  }
  at = text;
  sum = to;
}

}  // namespace korventally::engine
