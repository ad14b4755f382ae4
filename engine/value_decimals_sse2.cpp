// Two passes over a kilobyte at a time: the first finds where the values end (value_ends_sse2.h);
// the second takes the digits in front of two ends at once.
#include <emmintrin.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/value_decimals.h"
#include "engine/value_ends_sse2.h"
#include "engine/value_row.h"

namespace korventally::engine {
namespace {

constexpr int kMostDecimals = 12;
constexpr int kLargestExact = 22;    // ten to this power is a double
constexpr std::size_t kWindow = 16;  // the bytes in front of an end that may hold its value
constexpr std::size_t kExponentSize = 4;

// Digits in a window of sixteen bytes are joined in pairs, fours and eights. The point counts as a
// zero that takes no place: whatever is joined with a side that holds it moves one place less.
struct Weights {
  alignas(16) std::int16_t pairs[8] = {};  // 256 times, and 1 for what stays in place
  alignas(16) std::int16_t fours[8] = {};
  alignas(16) std::int16_t eights[8] = {};
  double all = 0;
};

constexpr std::int16_t tenTo(int power) {
  std::int16_t number = 1;
  for (; power > 0; --power) number = static_cast<std::int16_t>(10 * number);
  return number;
}

constexpr Weights weightsFor(std::size_t decimals) {
  Weights weights;
  const std::size_t point = kWindow - 1 - decimals;
  const auto width = [point](std::size_t first, std::size_t size) {
    return static_cast<int>(size) - (point >= first && point < first + size ? 1 : 0);
  };
  for (std::size_t i = 0; i < 8; ++i) {
    weights.pairs[i] = static_cast<std::int16_t>(256 * tenTo(width(2 * i + 1, 1)) + 1);
    weights.fours[i] = i % 2 == 0 ? tenTo(width(2 * i + 2, 2)) : std::int16_t{1};
    weights.eights[i] = i % 2 == 0 ? tenTo(width(4 * (i % 4) + 4, 4)) : std::int16_t{1};
  }
  weights.all = 1e4 * tenTo(width(8, 8) - 4);
  return weights;
}

constexpr auto kWeights = [] {
  std::array<Weights, kMostDecimals + 1> all{};
  for (std::size_t k = 0; k < all.size(); ++k) all[k] = weightsFor(k);
  return all;
}();

constexpr auto kPowers = [] {
  std::array<double, kLargestExact + 1> powers{};
  double power = 1;
  for (double& each : powers) {
    each = power;
    power *= 10;
  }
  return powers;
}();

// Sixteen zeros and sixteen ones: what lies this many bytes in front of an end belongs to it.
constexpr auto kOwn = [] {
  std::array<unsigned char, 2 * kWindow> own{};
  for (std::size_t i = kWindow; i < own.size(); ++i) own[i] = 0xFF;
  return own;
}();

// The same in registers.
struct Loaded {
  Loaded(const Weights& weights, double divisorOf)
      : pairs(load(weights.pairs)),
        fours(load(weights.fours)),
        eights(load(weights.eights)),
        all(_mm_set1_pd(weights.all)),
        divisor(_mm_set1_pd(divisorOf)) {}

  __m128i pairs, fours, eights;
  __m128d all, divisor;
};

// The digits in front of this end as four numbers of up to four; separators and the point lie below
// "0" and become zeros.
inline __m128i fours(const char* end, std::size_t gap, const Loaded& weights) {
  const __m128i own = _mm_and_si128(load(end - kWindow), load(&kOwn[gap]));
  const __m128i digits = _mm_subs_epu8(own, _mm_set1_epi8('0'));
  const __m128i pairs = _mm_srli_epi16(_mm_mullo_epi16(digits, weights.pairs), 8);
  return _mm_madd_epi16(pairs, weights.fours);
}

// Fourteen digits are a whole number that a double holds exactly, and so is the power of ten: the
// one division rounds once, and correctly.
inline __m128d joined(__m128i one, __m128i other, const Loaded& weights) {
  const __m128i eights = _mm_madd_epi16(_mm_packs_epi32(one, other), weights.eights);
  const __m128d high = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 3, 2, 0)));
  const __m128d low = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 3, 3, 1)));
  return _mm_div_pd(_mm_add_pd(_mm_mul_pd(high, weights.all), low), weights.divisor);
}

inline bool belongs(char c) { return c == '.' || (c >= '0' && c <= '9'); }

// Behind a gap as wide as the window a value may be longer than that; narrows the gap, or says that
// it is.
bool fitsWindow(const char* end, std::size_t& gap) {
  if (gap < kWindow) return true;
  gap = kWindow;
  return !belongs(*(end - kWindow));
}

}  // namespace

void ValueDecimals::learn(int decimals, std::string_view exponent) {
  if (decimals < 1 || decimals > kMostDecimals) return;
  int power = 0;
  if (!exponent.empty()) {
    if (exponent.size() != kExponentSize || exponent[1] != '-') return;
    power = 10 * (exponent[2] - '0') + exponent[3] - '0';
    if (decimals + power > kLargestExact) return;
  }
  decimals_ = static_cast<std::size_t>(decimals);
  power_ = power;
  exponent_[0] = 0;
  std::ranges::copy(exponent, exponent_);
}

bool ValueDecimals::add(const char*& at, const char* lineEnd, double*& sum, double* end) const {
  if (decimals_ == 0) return true;
  return exponent_[0] == 0 ? addAll<false>(at, lineEnd, sum, end)
                           : addAll<true>(at, lineEnd, sum, end);
}

template <bool HasExponent>
bool ValueDecimals::addAll(const char*& at, const char* lineEnd, double*& sum, double* end) const {
  constexpr std::size_t kTail = HasExponent ? kExponentSize : 0;
  const Loaded weights(kWeights[decimals_], kPowers[decimals_ + static_cast<std::size_t>(power_)]);
  __m128d largest = _mm_setzero_pd();
  Ends<HasExponent> ends(decimals_, exponent_);
  for (bool going = true; going && sum != end;) {
    const std::size_t count = std::min(ends.find(at, lineEnd), static_cast<std::size_t>(end - sum));
    const char* const base = at;
    double* const to = sum;
    std::size_t before = 0, i = 0;
    for (; i + 1 < count; i += 2) {
      const std::size_t one = ends.places[i], other = ends.places[i + 1];
      std::size_t gap = one - before - kTail, nextGap = other - one - kTail;
      const char *const first = base + one - kTail, *const second = base + other - kTail;
      if ((gap | nextGap) >= kWindow && !(fitsWindow(first, gap) && fitsWindow(second, nextGap))) {
        break;
      }
      const __m128d pair =
          joined(fours(first, gap, weights), fours(second, nextGap, weights), weights);
      largest = _mm_max_pd(largest, pair);
      _mm_storeu_pd(to + i, _mm_add_pd(_mm_loadu_pd(to + i), pair));
      before = other;
    }
    going = i > 0;
    sum += i;
    at = base + before;
  }
  return _mm_movemask_pd(_mm_cmpgt_pd(largest, _mm_set1_pd(kLargestValue))) == 0;
}

}  // namespace korventally::engine
