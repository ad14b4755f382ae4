// Fixed decimals with AVX2. The rest of the program runs on processors without it, so only these
// functions are compiled for it, and none of them is shared with another file. The templates that
// call them are inlined into addByAvx2(), and compiled for AVX2 with it.
#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "engine/value_decimals.h"
#include "engine/value_decimals_x86.h"
#include "engine/value_ends.h"
#include "engine/value_row.h"

#define FOR_AVX2 __attribute__((target("avx2,bmi,bmi2,popcnt")))

namespace korventally::engine {
namespace {

FOR_AVX2 inline __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

FOR_AVX2 inline __m256i load(const void* low, const void* high) {
  return _mm256_inserti128_si256(_mm256_castsi128_si256(load(low)), load(high), 1);
}

FOR_AVX2 inline __m256i is(char c, __m256i bytes) {
  return _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8(c));
}

FOR_AVX2 inline __m256i isDigit(__m256i bytes) {
  return _mm256_cmpgt_epi8(_mm256_add_epi8(bytes, _mm256_set1_epi8(127 - '9')),
                           _mm256_set1_epi8(117));
}

FOR_AVX2 inline std::uint64_t bits(__m256i bytes, int place) {
  return std::uint64_t{static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes))} << place;
}

class Avx2 {
 public:
  static constexpr std::size_t kAtOnce = 4, kSpare = 8;

  FOR_AVX2 Avx2(const Weights& weights, double divisor)
      : pairs_(load(weights.pairs, weights.pairs)),
        fours_(load(weights.fours, weights.fours)),
        eights_(load(weights.eights, weights.eights)),
        all_(_mm256_set1_epi64x(weights.all)),
        divisor_(_mm256_set1_pd(divisor)) {
    // Within each two bytes the weights stand in the order of the digits.
    pairs_ = _mm256_or_si256(_mm256_slli_epi16(pairs_, 8), _mm256_srli_epi16(pairs_, 8));
  }

  template <bool HasExponent>
  FOR_AVX2 static Marks marks(const char* text, char letter) {
    Marks marks;
    for (int i = 0; i < 64; i += 32) {
      const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(text + i));
      const __m256i isPoint = is('.', bytes);
      marks.number |= bits(_mm256_or_si256(isDigit(bytes), isPoint), i);
      marks.point |= bits(isPoint, i);
      marks.comma |= bits(is(',', bytes), i);
      marks.blank |= bits(_mm256_or_si256(is(' ', bytes), is('\t', bytes)), i);
      if (HasExponent) marks.letter |= bits(is(letter, bytes), i);
    }
    return marks;
  }

  // How many values end within 64 bytes cannot be foreseen: eight are noted in any case, so that
  // the processor need not guess.
  template <class Place>
  FOR_AVX2 static Place* note(unsigned base, std::uint64_t ends, Place* to) {
    Place* const behind = to + std::popcount(ends);
    for (std::size_t i = 0; i < kSpare; ++i, ends &= ends - 1) *to++ = place<Place>(base, ends);
    for (; ends != 0; ends &= ends - 1) *to++ = place<Place>(base, ends);
    return behind;
  }

  // As with SSE2, but the whole numbers are joined as such. As the last bits of a double, behind
  // those of 2**52, a number of up to fourteen digits is added to 2**52.
  FOR_AVX2 void add(const Window (&windows)[kAtOnce], double* sums) {
    const __m256i fours = _mm256_packs_epi32(foursOf(windows[0], windows[2]),  //
                                             foursOf(windows[1], windows[3]));
    const __m256i eights = _mm256_madd_epi16(fours, eights_);
    const __m256i whole =
        _mm256_add_epi64(_mm256_mul_epu32(eights, all_), _mm256_srli_epi64(eights, 32));
    const __m256d base = _mm256_set1_pd(0x1p52);
    const __m256d above = _mm256_or_pd(_mm256_castsi256_pd(whole), base);
    const __m256d values = _mm256_div_pd(_mm256_sub_pd(above, base), divisor_);
    largest_ = _mm256_max_pd(largest_, values);
    _mm256_storeu_pd(sums, _mm256_add_pd(_mm256_loadu_pd(sums), values));
  }

  FOR_AVX2 bool tooLarge() const {
    const __m256d limit = _mm256_set1_pd(kLargestValue);
    return _mm256_movemask_pd(_mm256_cmp_pd(largest_, limit, _CMP_GT_OQ)) != 0;
  }

 private:
  template <class Place>
  FOR_AVX2 static Place place(unsigned base, std::uint64_t ends) {
    return static_cast<Place>(base + static_cast<unsigned>(_tzcnt_u64(ends)));
  }

  // The digits of two values as four numbers each, as with SSE2.
  FOR_AVX2 __m256i foursOf(const Window& one, const Window& other) const {
    const __m256i window = load(one.end - Window::kSize, other.end - Window::kSize);
    const __m256i own = _mm256_and_si256(window, load(&kOwn[one.gap], &kOwn[other.gap]));
    const __m256i digits = _mm256_subs_epu8(own, _mm256_set1_epi8('0'));
    return _mm256_madd_epi16(_mm256_maddubs_epi16(digits, pairs_), fours_);
  }

  __m256i pairs_, fours_, eights_, all_;
  __m256d divisor_;
  __m256d largest_ = _mm256_setzero_pd();
};

}  // namespace

__attribute__((flatten)) FOR_AVX2 bool addByAvx2(const DecimalForm& form, const char*& at,
                                                 const char* lineEnd, double*& sum, double* end) {
  return form.exponent[0] == 0 ? addDecimals<Avx2, false>(form, at, lineEnd, sum, end)
                               : addDecimals<Avx2, true>(form, at, lineEnd, sum, end);
}

}  // namespace korventally::engine
