// Two passes over a kilobyte at a time: the first finds where the values end, 64 bytes at once and
// a bit for each; the second takes the digits in front of two ends at once.
#include <emmintrin.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "engine/value_decimals.h"
#include "engine/value_row.h"

namespace korventally::engine {
namespace {

constexpr int kMostDecimals = 12;
constexpr std::size_t kWindow = 16;  // the bytes in front of an end that may hold its value
constexpr std::size_t kChunk = 1024;

inline __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

// A bit for each of 64 bytes.
struct Marks {
  std::uint64_t number = 0;  // digits and points
  std::uint64_t point = 0;
  std::uint64_t comma = 0;
  std::uint64_t blank = 0;  // and tabs
};

inline std::uint64_t bits(__m128i bytes, int place) {
  return static_cast<std::uint64_t>(_mm_movemask_epi8(bytes)) << place;
}

inline __m128i isDigit(__m128i bytes) {
  return _mm_cmpgt_epi8(_mm_add_epi8(bytes, _mm_set1_epi8(127 - '9')), _mm_set1_epi8(117));
}

inline __m128i is(char c, __m128i bytes) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); }

Marks marksOf(const char* text) {
  Marks marks;
  for (int i = 0; i < 64; i += 16) {
    const __m128i bytes = load(text + i);
    marks.number |= bits(_mm_or_si128(isDigit(bytes), is('.', bytes)), i);
    marks.point |= bits(is('.', bytes), i);
    marks.comma |= bits(is(',', bytes), i);
    marks.blank |= bits(_mm_or_si128(is(' ', bytes), is('\t', bytes)), i);
  }
  return marks;
}

// The same where, as nearly everywhere, there are but numbers, blanks and one other separator;
// false elsewhere.
inline bool marksOfUsual(const char* text, char other, Marks& marks) {
  const __m128i others = _mm_set1_epi8(other);
  __m128i known = _mm_set1_epi8(-1);
  marks = {};
  for (int i = 0; i < 64; i += 16) {
    const __m128i bytes = load(text + i);
    const __m128i isPoint = is('.', bytes);
    const __m128i isNumber = _mm_or_si128(isDigit(bytes), isPoint);
    const __m128i isOther = _mm_cmpeq_epi8(bytes, others);
    const __m128i isKnown = _mm_or_si128(isNumber, _mm_or_si128(is(' ', bytes), isOther));
    known = _mm_and_si128(known, isKnown);
    marks.number |= bits(isNumber, i);
    marks.point |= bits(isPoint, i);
    if (other == ',') marks.comma |= bits(isOther, i);
  }
  marks.blank = ~(marks.number | marks.comma);
  return _mm_movemask_epi8(known) == 0xFFFF;
}

// Finds the ends of values in the order of the text.
class Ends {
 public:
  using Place = std::uint16_t;

  explicit Ends(std::size_t decimals) : decimals_(decimals) {}

  // The ends from `at` on, up to the first one that is not the end of a number with so many
  // decimals behind a proper separator, the end of the line, or that of the chunk.
  std::size_t find(const char* at, const char* lineEnd) {
    carried_ = {};
    const char other = *at == ',' || *at == '\t' ? *at : ' ';
    Place* to = places.data();
    const auto room = static_cast<std::size_t>(lineEnd - at);
    for (std::size_t base = 0; base < kChunk; base += 64) {
      Marks marks;
      std::uint64_t bad = 0;
      const bool last = room - base < 64;
      if (last || !marksOfUsual(at + base, other, marks)) {
        marks = marksOf(at + base);
        if (last) keepWithin(room - base, marks);
        bad = ~(marks.number | marks.blank | marks.comma);
        if (last) bad ^= std::uint64_t{1} << (room - base);
      }
      const std::uint64_t ends = ~marks.number & (marks.number << 1 | carried_.number);
      bad |= notEndsOfDecimals(marks, ends);
      if ((marks.comma | carried_.comma) != 0) bad |= doubledCommas(marks);
      if (bad != 0) return countOf(note(base, ends & ((bad & -bad) - 1), to));
      to = note(base, ends, to);
      if (last) break;
      carried_.number = marks.number >> 63;
    }
    return countOf(to);
  }

  std::array<Place, kChunk / 2> places;

 private:
  // What follows the end of the line is nothing known; the end itself ends a value.
  static void keepWithin(std::size_t size, Marks& marks) {
    const std::uint64_t line = (std::uint64_t{1} << size) - 1;
    marks = {marks.number & line, marks.point & line, marks.comma & line, marks.blank & line};
  }

  // Where the decimals end that no value ends at, where a value ends without any, where so many of
  // them would end but do not, and where a point follows a point. A point too many comes to light
  // in front of the end of its value: as one of these, or where its own should have ended.
  std::uint64_t notEndsOfDecimals(const Marks& marks, std::uint64_t ends) {
    const std::uint64_t digits = marks.number & ~marks.point;
    const std::uint64_t behind = marks.point << 1 | carried_.point >> 63;
    // The sum carries each place behind a point over the digits that begin there.
    const std::uint64_t sum = (behind & digits) + digits;
    const std::uint64_t carried = sum + carried_.decimals;
    const std::uint64_t expected =
        marks.point << (decimals_ + 1) | carried_.point >> (63 - decimals_);
    carried_.decimals = sum < digits || carried < sum ? 1 : 0;
    carried_.point = marks.point;
    return (ends ^ (carried & ~digits)) | (ends ^ expected) | (behind & marks.point);
  }

  // Commas that follow another with nothing but blanks between; carried over as above.
  std::uint64_t doubledCommas(const Marks& marks) {
    const std::uint64_t behind = marks.comma << 1 | carried_.comma;
    const std::uint64_t carried = (behind & marks.blank) + marks.blank;
    carried_.comma = marks.comma >> 63 | (carried < marks.blank ? 1 : 0);
    return ((carried & ~marks.blank) | behind) & marks.comma;
  }

  std::size_t countOf(const Place* behind) const {
    return static_cast<std::size_t>(behind - places.data());
  }

  static Place* note(std::size_t base, std::uint64_t ends, Place* to) {
    const auto first = static_cast<unsigned>(base);
    for (; ends != 0; ends &= ends - 1) {
      *to++ = static_cast<Place>(first + static_cast<unsigned>(std::countr_zero(ends)));
    }
    return to;
  }

  // What the bytes in front of these 64 mean to them: the last one is one of a number, decimals or
  // a comma and blanks reach the end, and all the points.
  struct Carried {
    std::uint64_t number = 0, decimals = 0, comma = 0, point = 0;
  };

  const std::size_t decimals_;
  Carried carried_;
};

// Digits in a window of sixteen bytes are joined in pairs, fours and eights. The point counts as a
// zero that takes no place: whatever is joined with a side that holds it moves one place less.
struct Weights {
  alignas(16) std::int16_t pairs[8] = {};  // 256 times, and 1 for what stays in place
  alignas(16) std::int16_t fours[8] = {};
  alignas(16) std::int16_t eights[8] = {};
  double all = 0;
  double divisor = 0;
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
  weights.divisor = 1;
  for (std::size_t i = 0; i < decimals; ++i) weights.divisor *= 10;
  return weights;
}

constexpr auto kWeights = [] {
  std::array<Weights, kMostDecimals + 1> all{};
  for (std::size_t k = 0; k < all.size(); ++k) all[k] = weightsFor(k);
  return all;
}();

// Sixteen zeros and sixteen ones: what lies this many bytes in front of an end belongs to it.
constexpr auto kOwn = [] {
  std::array<unsigned char, 2 * kWindow> own{};
  for (std::size_t i = kWindow; i < own.size(); ++i) own[i] = 0xFF;
  return own;
}();

// The same in registers.
struct Loaded {
  explicit Loaded(const Weights& weights)
      : pairs(load(weights.pairs)),
        fours(load(weights.fours)),
        eights(load(weights.eights)),
        all(_mm_set1_pd(weights.all)),
        divisor(_mm_set1_pd(weights.divisor)) {}

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

void ValueDecimals::learn(int decimals) {
  if (decimals < 1 || decimals > kMostDecimals) return;
  decimals_ = static_cast<std::size_t>(decimals);
}

bool ValueDecimals::add(const char*& at, const char* lineEnd, double*& sum, double* end) const {
  if (decimals_ == 0) return true;
  const Loaded weights(kWeights[decimals_]);
  __m128d largest = _mm_setzero_pd();
  Ends ends(decimals_);
  for (bool going = true; going && sum != end;) {
    const std::size_t count = std::min(ends.find(at, lineEnd), static_cast<std::size_t>(end - sum));
    const char* const base = at;
    double* const to = sum;
    std::size_t before = 0, i = 0;
    for (; i + 1 < count; i += 2) {
      const std::size_t one = ends.places[i], other = ends.places[i + 1];
      std::size_t gap = one - before, nextGap = other - one;
      if ((gap | nextGap) >= kWindow &&
          !(fitsWindow(base + one, gap) && fitsWindow(base + other, nextGap))) {
        break;
      }
      const __m128d pair =
          joined(fours(base + one, gap, weights), fours(base + other, nextGap, weights), weights);
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
