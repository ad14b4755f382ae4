// Where values end: the first pass of value_decimals_sse2.cpp, 64 bytes at once and a bit for each.
#pragma once

#include <emmintrin.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace korventally::engine {

inline __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

// A bit for each of 64 bytes.
struct Marks {
  std::uint64_t number = 0;  // digits and points
  std::uint64_t point = 0;
  std::uint64_t comma = 0;
  std::uint64_t blank = 0;  // and tabs
  // The letter and the sign of exponents, and the digits that the exponent has, wherever they are.
  std::uint64_t letter = 0, sign = 0, tens = 0, ones = 0;
};

inline std::uint64_t bits(__m128i bytes, int place) {
  return static_cast<std::uint64_t>(_mm_movemask_epi8(bytes)) << place;
}

inline __m128i isDigit(__m128i bytes) {
  return _mm_cmpgt_epi8(_mm_add_epi8(bytes, _mm_set1_epi8(127 - '9')), _mm_set1_epi8(117));
}

inline __m128i is(char c, __m128i bytes) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); }

// Finds the ends of values in the order of the text.
template <bool HasExponent>
class Ends {
 public:
  using Place = std::uint16_t;

  static constexpr std::size_t kChunk = 1024;

  /// `exponent` has four bytes, as "E-06" has; without HasExponent none is looked at.
  Ends(std::size_t decimals, const char* exponent) : decimals_(decimals), exponent_(exponent) {}

  /// The ends from `at` on, up to the first one that is not the end of a number with so many
  /// decimals, and its exponent, behind a proper separator; the end of the line, or that of the
  /// chunk.
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
        bad = ~(marks.number | marks.blank | marks.comma | marks.letter | marks.sign);
        if (last) bad ^= std::uint64_t{1} << (room - base);
      }
      std::uint64_t behind = 0;
      if (HasExponent) behind = takeExponents(marks, bad);
      const std::uint64_t ends = ~marks.number & (marks.number << 1 | carried_.number);
      if (HasExponent) bad |= ends ^ marks.letter;
      bad |= notEndsOfDecimals(marks, ends);
      if ((marks.comma | carried_.comma) != 0) bad |= doubledCommas(marks);
      const std::uint64_t all = HasExponent ? behind : ends;
      if (bad != 0) return countOf(note(base, all & ((bad & -bad) - 1), to));
      to = note(base, all, to);
      if (last) break;
      carried_.number = marks.number >> 63;
    }
    return countOf(to);
  }

  std::array<Place, kChunk / 2> places;

 private:
  Marks marksOf(const char* text) const {
    Marks marks;
    for (int i = 0; i < 64; i += 16) {
      const __m128i bytes = load(text + i);
      marks.number |= bits(_mm_or_si128(isDigit(bytes), is('.', bytes)), i);
      marks.point |= bits(is('.', bytes), i);
      marks.comma |= bits(is(',', bytes), i);
      marks.blank |= bits(_mm_or_si128(is(' ', bytes), is('\t', bytes)), i);
      if (HasExponent) markExponents(bytes, i, marks);
    }
    return marks;
  }

  // The same where, as nearly everywhere, there are but numbers, blanks and one other separator;
  // false elsewhere.
  bool marksOfUsual(const char* text, char other, Marks& marks) const {
    const __m128i others = _mm_set1_epi8(other);
    __m128i known = _mm_set1_epi8(-1);
    marks = {};
    for (int i = 0; i < 64; i += 16) {
      const __m128i bytes = load(text + i);
      const __m128i isPoint = is('.', bytes);
      const __m128i isNumber = _mm_or_si128(isDigit(bytes), isPoint);
      const __m128i isOther = _mm_cmpeq_epi8(bytes, others);
      __m128i isKnown = _mm_or_si128(isNumber, _mm_or_si128(is(' ', bytes), isOther));
      if (HasExponent) isKnown = _mm_or_si128(isKnown, markExponents(bytes, i, marks));
      known = _mm_and_si128(known, isKnown);
      marks.number |= bits(isNumber, i);
      marks.point |= bits(isPoint, i);
      if (other == ',') marks.comma |= bits(isOther, i);
    }
    marks.blank = ~(marks.number | marks.comma);
    if (HasExponent) marks.blank &= ~(marks.letter | marks.sign);
    return _mm_movemask_epi8(known) == 0xFFFF;
  }

  // Returns which bytes are letters and signs.
  __m128i markExponents(__m128i bytes, int place, Marks& marks) const {
    const __m128i isLetter = is(exponent_[0], bytes), isSign = is(exponent_[1], bytes);
    marks.letter |= bits(isLetter, place);
    marks.sign |= bits(isSign, place);
    marks.tens |= bits(is(exponent_[2], bytes), place);
    marks.ones |= bits(is(exponent_[3], bytes), place);
    return _mm_or_si128(isLetter, isSign);
  }

  // What follows the end of the line is nothing known; the end itself ends a value.
  static void keepWithin(std::size_t size, Marks& marks) {
    const std::uint64_t line = (std::uint64_t{1} << size) - 1;
    for (std::uint64_t* all : {&marks.number, &marks.point, &marks.comma, &marks.blank,
                               &marks.letter, &marks.sign, &marks.tens, &marks.ones}) {
      *all &= line;
    }
  }

  // Makes the digits of exponents part of no number; what is wrong with one is found at its place
  // or in front of its end. Returns where exponents end, which is where values end then.
  std::uint64_t takeExponents(Marks& marks, std::uint64_t& bad) {
    const std::uint64_t letter = marks.letter, before = carried_.letter;
    const std::uint64_t sign = letter << 1 | before >> 63, tens = letter << 2 | before >> 62;
    const std::uint64_t ones = letter << 3 | before >> 61, end = letter << 4 | before >> 60;
    carried_.letter = letter;
    bad |= (sign ^ marks.sign) | (tens & ~marks.tens) | (ones & ~marks.ones);
    marks.number &= ~(tens | ones);
    bad |= end & marks.number;
    return end;
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
  // a comma and blanks reach the end, and all the points and letters.
  struct Carried {
    std::uint64_t number = 0, decimals = 0, comma = 0, point = 0, letter = 0;
  };

  const std::size_t decimals_;
  const char* const exponent_;
  Carried carried_;
};

}  // namespace korventally::engine
