// Processors of the x86 family: SSE2, which every one of 64 bits has, and nothing newer, so that
// one program runs on all.
#include <emmintrin.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "engine/value_shape.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kMostDecimals = 7;
constexpr std::size_t kRestOfField = 6;  // a digit and the point in front, the exponent behind

// The digits divided by powers[4 * e + sign] are the value; sign is 2 for exponent -e and 0 for +e,
// the distances of "-" and "+" from "+". Powers of ten up to 10**22 are exact doubles, so the one
// division rounds once, and correctly. NaN stands for all others, and for the "," between "+" and
// "-": a value that is none is not taken, whatever its digits.
using Powers = std::array<double, 400>;

// Where the characters "+00" would lead if they counted as they are.
constexpr std::size_t kFirstPower = 40 * '0' + 4 * '0' + '+';

constexpr double powerAt(int decimals, int index) {
  const int e = index / 4, sign = index % 4;
  const int power = sign == 0 ? decimals - e : decimals + e;
  if (power < 0 || power > 22 || (sign != 0 && sign != 2)) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  double number = 1;
  for (int i = 0; i < power; ++i) number *= 10;
  return number;
}

constexpr auto kPowers = [] {
  std::array<Powers, kMostDecimals + 1> all{};
  for (std::size_t k = 0; k < all.size(); ++k) {
    for (std::size_t i = 0; i < all[k].size(); ++i) {
      all[k][i] = powerAt(static_cast<int>(k), static_cast<int>(i));
    }
  }
  return all;
}();

inline __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

// What the loop below needs of a shape, in registers.
struct Loaded {
  __m128i least, span, spareBits;  // of eight digits, spareBits are those that the shape lacks
  std::size_t last, exponent;      // behind the first separator: the last one, the exponent
  const double* powers;
};

// All ones in the bytes that are what this piece of the shape asks for.
inline __m128i fitting(const char* text, __m128i least, __m128i span) {
  const __m128i above = _mm_sub_epi8(load(text), least);
  return _mm_cmpeq_epi8(_mm_min_epu8(above, span), above);
}

inline __m128i fitting(const char* text, const Loaded& shape) {
  return fitting(text, shape.least, shape.span);
}

inline bool all(__m128i bytes) { return _mm_movemask_epi8(bytes) == 0xFFFF; }

inline __m128i loadEight(const char* one, const char* other) {
  return _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(one)),
                            _mm_loadl_epi64(reinterpret_cast<const __m128i*>(other)));
}

// The digits of two values as two numbers: eight digits each, zeros in front, summed up in pairs,
// then fours, then all eight.
inline __m128d digits(const char* one, const char* other, const Loaded& shape) {
  one += shape.last;
  other += shape.last;
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
inline __m128d valuesAt(const char* one, const char* other, const Loaded& shape) {
  const __m128d powers = _mm_loadh_pd(_mm_load_sd(power(one, shape)), power(other, shape));
  return _mm_div_pd(digits(one, other, shape), powers);
}

}  // namespace

// A value like "d.dddE-dd" has a shape; the table of powers turns away what only looks like one.
void ValueShape::learn(std::string_view separators, std::string_view field) {
  const std::size_t decimals = field.size() - kRestOfField;
  if (field.size() <= kRestOfField || decimals > kMostDecimals || field[1] != '.') return;
  const char mark = field[field.size() - 4];
  if (mark != 'E' && mark != 'e') return;
  if (separators.size() == separators_ && decimals == decimals_ && fits(separators.data())) return;
  const std::size_t size = separators.size() + decimals + kRestOfField + 1;
  if (size > sizeof least_) return;
  std::memset(least_, 0, sizeof least_);
  std::memset(span_, 0xFF, sizeof span_);
  std::size_t place = 0;
  const auto allow = [&](char least, char most) {
    least_[place] = static_cast<std::uint8_t>(least);
    span_[place++] = static_cast<std::uint8_t>(most - least);
  };
  for (const char c : separators) allow(c, c);
  allow('0', '9');
  allow('.', '.');
  for (std::size_t i = 0; i < decimals; ++i) allow('0', '9');
  allow(mark, mark);
  allow('+', '-');
  for (int i = 0; i < 2; ++i) allow('0', '9');
  allow('\0', ',');
  separators_ = separators.size();
  decimals_ = decimals;
  pieces_ = (size + 15) / 16;
}

// Whether the bytes from this piece of the shape on fit.
bool ValueShape::fits(const char* text, std::size_t piece) const {
  for (; piece < pieces_; ++piece) {
    const std::size_t at = 16 * piece;
    if (!all(fitting(text + at, load(least_ + at), load(span_ + at)))) return false;
  }
  return true;
}

void ValueShape::add(const char*& at, const char* lineEnd, double*& sum, double* end) const {
  if (pieces_ == 0 || !fits(at)) return;
  const std::size_t length = separators_ + decimals_ + kRestOfField;
  const Loaded shape = {load(least_),
                        load(span_),
                        _mm_cvtsi32_si128(static_cast<int>(8 * (kMostDecimals - decimals_))),
                        separators_ - 1,
                        separators_ + decimals_ + 2,
                        kPowers[decimals_].data()};
  const bool furtherPieces = pieces_ > 1;
  const std::size_t room = static_cast<std::size_t>(lineEnd - at) / length;
  const auto values = std::min(room, static_cast<std::size_t>(end - sum));
  const char* text = at;
  double* to = sum;
  double* const lastPair = sum + values / 2 * 2;
  while (to != lastPair) {
    const char* const next = text + length;
    if (!all(_mm_and_si128(fitting(text, shape), fitting(next, shape)))) break;
    if (furtherPieces && !(fits(text, 1) && fits(next, 1))) break;
    const __m128d pair = valuesAt(text, next, shape);
    if (_mm_movemask_pd(_mm_cmpnge_pd(pair, _mm_setzero_pd())) != 0) break;
    _mm_storeu_pd(to, _mm_add_pd(_mm_loadu_pd(to), pair));
    to += 2;
    text = next + length;
  }
  // The last of an odd number, or the one before another shape.
  if (to != sum + values && fits(text)) {
    const double value = _mm_cvtsd_f64(valuesAt(text, text, shape));
    if (value >= 0) {
      *to++ += value;
      text += length;
    }
  }
  at = text;
  sum = to;
}

}  // namespace korventally::engine
