// Fixed decimals with SSE2, which every processor of the x86 family with 64 bits has.
#include <emmintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "engine/value_decimals.h"
#include "engine/value_decimals_x86.h"
#include "engine/value_ends.h"
#include "engine/value_row.h"

namespace korventally::engine {
namespace {

inline __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

inline std::uint64_t bits(__m128i bytes, int place) {
  return static_cast<std::uint64_t>(_mm_movemask_epi8(bytes)) << place;
}

inline __m128i isDigit(__m128i bytes) {
  return _mm_cmpgt_epi8(_mm_add_epi8(bytes, _mm_set1_epi8(127 - '9')), _mm_set1_epi8(117));
}

inline __m128i is(char c, __m128i bytes) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); }

class Sse2 {
 public:
  static constexpr std::size_t kAtOnce = 2, kSpare = 0;

  Sse2(const Weights& weights, double divisor)
      : pairs_(load(weights.pairs)),
        fours_(load(weights.fours)),
        eights_(load(weights.eights)),
        all_(_mm_set1_pd(weights.all)),
        divisor_(_mm_set1_pd(divisor)) {}

  template <bool HasExponent>
  static Marks marks(const char* text, char letter) {
    Marks marks;
    for (int i = 0; i < 64; i += 16) {
      const __m128i bytes = load(text + i);
      const __m128i isPoint = is('.', bytes);
      marks.number |= bits(_mm_or_si128(isDigit(bytes), isPoint), i);
      marks.point |= bits(isPoint, i);
      marks.comma |= bits(is(',', bytes), i);
      marks.blank |= bits(_mm_or_si128(is(' ', bytes), is('\t', bytes)), i);
      if (HasExponent) marks.letter |= bits(is(letter, bytes), i);
    }
    return marks;
  }

  template <class Place>
  static Place* note(unsigned base, std::uint64_t ends, Place* to) {
    for (; ends != 0; ends &= ends - 1) {
      *to++ = static_cast<Place>(base + static_cast<unsigned>(std::countr_zero(ends)));
    }
    return to;
  }

  // Fourteen digits are a whole number that a double holds exactly, and so is the power of ten: the
  // one division rounds once, and correctly.
  void add(const Window (&windows)[kAtOnce], double* sums) {
    const __m128i fours = _mm_packs_epi32(foursOf(windows[0]), foursOf(windows[1]));
    const __m128i eights = _mm_madd_epi16(fours, eights_);
    const __m128d high = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 3, 2, 0)));
    const __m128d low = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 3, 3, 1)));
    const __m128d values = _mm_div_pd(_mm_add_pd(_mm_mul_pd(high, all_), low), divisor_);
    largest_ = _mm_max_pd(largest_, values);
    _mm_storeu_pd(sums, _mm_add_pd(_mm_loadu_pd(sums), values));
  }

  bool tooLarge() const {
    return _mm_movemask_pd(_mm_cmpgt_pd(largest_, _mm_set1_pd(kLargestValue))) != 0;
  }

 private:
  // The digits in front of this end as four numbers of up to four; separators and the point lie
  // below "0" and become zeros.
  __m128i foursOf(const Window& window) const {
    const __m128i own = _mm_and_si128(load(window.end - Window::kSize), load(&kOwn[window.gap]));
    const __m128i digits = _mm_subs_epu8(own, _mm_set1_epi8('0'));
    const __m128i pairs = _mm_srli_epi16(_mm_mullo_epi16(digits, pairs_), 8);
    return _mm_madd_epi16(pairs, fours_);
  }

  __m128i pairs_, fours_, eights_;
  __m128d all_, divisor_;
  __m128d largest_ = _mm_setzero_pd();
};

}  // namespace

bool addBySse2(const DecimalForm& form, const char*& at, const char* lineEnd, double*& sum,
               double* end) {
  return form.exponent[0] == 0 ? addDecimals<Sse2, false>(form, at, lineEnd, sum, end)
                               : addDecimals<Sse2, true>(form, at, lineEnd, sum, end);
}

}  // namespace korventally::engine
