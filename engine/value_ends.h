// Where values end: the first pass over fixed decimals, 64 bytes at once and a bit for each.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "engine/value_decimals.h"

namespace korventally::engine {

// A bit for each of 64 bytes.
struct Marks {
  std::uint64_t number = 0;  // digits and points
  std::uint64_t point = 0;
  std::uint64_t comma = 0;
  std::uint64_t blank = 0;   // and tabs
  std::uint64_t letter = 0;  // that exponents begin with
};

// The bytes in front of an end that may hold its value.
struct Window {
  static constexpr std::size_t kSize = 16;

  const char* end;
  std::size_t gap;  // from the end of the value before; what lies farther in front is not its own
};

// Finds the ends of values in the order of the text. `Way` has the instructions of one processor:
// marks() finds what a class of bytes is, and note() writes down places and may write kSpare more.
template <class Way, bool HasExponent>
class Ends {
 public:
  using Place = std::uint16_t;

  explicit Ends(const DecimalForm& form)
      : decimals_(form.decimals), letter_(form.exponent[0]), exponent_(fourBytes(form.exponent)) {
    places_[0] = 0;
  }

  /// How many ends there are from `at` on, up to the first one that is not the end of a number with
  /// so many decimals behind a proper separator; the end of the line, or that of the chunk. With an
  /// exponent each has the letter of one, and fits() tells whether it is the right one.
  std::size_t find(const char* at, const char* lineEnd) {
    Carried carried;
    begin_ = at;
    Place* const first = places_.data() + 1;
    Place* to = first;
    const auto room = static_cast<std::size_t>(lineEnd - at);
    for (std::size_t base = 0; base < kChunk; base += 64) {
      Marks marks = Way::template marks<HasExponent>(at + base, letter_);
      const bool last = room - base < 64;
      if (last) keepWithin(room - base, marks);
      std::uint64_t bad = ~(marks.number | marks.blank | marks.comma | marks.letter);
      if (last) bad ^= std::uint64_t{1} << (room - base);
      std::uint64_t behind = 0;
      if (HasExponent) behind = takeExponents(marks, bad, carried);
      const std::uint64_t ends = ~marks.number & (marks.number << 1 | carried.number);
      if (HasExponent) bad |= ends ^ marks.letter;
      bad |= notEndsOfDecimals(marks, ends, carried);
      if ((marks.comma | carried.comma) != 0) bad |= doubledCommas(marks, carried);
      std::uint64_t all = HasExponent ? behind : ends;
      if (bad != 0) all &= (bad & -bad) - 1;
      to = Way::note(static_cast<unsigned>(base), all, to);
      if (last || bad != 0) break;
      carried.number = marks.number >> 63;
    }
    return static_cast<std::size_t>(to - first);
  }

  /// The window of one of these values.
  Window window(std::size_t i) const {
    const std::size_t tail = HasExponent ? sizeof exponent_ : 0;
    const std::size_t before = places_[i], end = places_[i + 1];
    return {begin_ + end - tail, end - before - tail};
  }

  /// False when another exponent follows, or when the value may be longer than its window.
  bool fits(const Window& window) const {
    return window.gap < Window::kSize && (!HasExponent || fourBytes(window.end) == exponent_);
  }

  /// The same for a value behind a gap as wide as the window, which this makes no wider than that.
  bool fitsBehindGap(Window& window) const {
    if (HasExponent && fourBytes(window.end) != exponent_) return false;
    if (window.gap < Window::kSize) return true;
    window.gap = Window::kSize;
    const char c = *(window.end - Window::kSize);
    return c != '.' && (c < '0' || c > '9');
  }

  /// Where the first `count` values end.
  const char* behind(std::size_t count) const { return begin_ + places_[count]; }

 private:
  static constexpr std::size_t kChunk = 1024;

  // What the bytes in front of 64 mean to these: the last one is one of a number, decimals or a
  // comma and blanks reach the end, and all the points and letters.
  struct Carried {
    std::uint64_t number = 0, decimals = 0, comma = 0, point = 0, letter = 0;
  };

  static std::uint32_t fourBytes(const char* text) {
    std::uint32_t bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return bytes;
  }

  // What follows the end of the line is nothing known; the end itself ends a value.
  static void keepWithin(std::size_t size, Marks& marks) {
    const std::uint64_t line = (std::uint64_t{1} << size) - 1;
    for (std::uint64_t* all :
         {&marks.number, &marks.point, &marks.comma, &marks.blank, &marks.letter}) {
      *all &= line;
    }
  }

  // Takes what follows letters for exponents, and their digits for part of no number. Returns where
  // exponents end, which is where values end then.
  static std::uint64_t takeExponents(Marks& marks, std::uint64_t& bad, Carried& carried) {
    const std::uint64_t letter = marks.letter, before = carried.letter;
    const std::uint64_t exponent =
        letter << 1 | letter << 2 | letter << 3 | before >> 63 | before >> 62 | before >> 61;
    const std::uint64_t end = letter << 4 | before >> 60;
    carried.letter = letter;
    marks.number &= ~exponent;
    bad = (bad & ~exponent) | (end & marks.number);
    return end;
  }

  // Where the decimals end that no value ends at, where a value ends without any, where so many of
  // them would end but do not, and where a point follows a point. A point too many comes to light
  // in front of the end of its value: as one of these, or where its own should have ended.
  std::uint64_t notEndsOfDecimals(const Marks& marks, std::uint64_t ends, Carried& carried) const {
    const std::uint64_t digits = marks.number & ~marks.point;
    const std::uint64_t behind = marks.point << 1 | carried.point >> 63;
    // The sum carries each place behind a point over the digits that begin there.
    const std::uint64_t sum = (behind & digits) + digits;
    const std::uint64_t reached = sum + carried.decimals;
    const std::uint64_t expected =
        marks.point << (decimals_ + 1) | carried.point >> (63 - decimals_);
    carried.decimals = sum < digits || reached < sum ? 1 : 0;
    carried.point = marks.point;
    return (ends ^ (reached & ~digits)) | (ends ^ expected) | (behind & marks.point);
  }

  // Commas that follow another with nothing but blanks between; carried over as above.
  static std::uint64_t doubledCommas(const Marks& marks, Carried& carried) {
    const std::uint64_t behind = marks.comma << 1 | carried.comma;
    const std::uint64_t reached = (behind & marks.blank) + marks.blank;
    carried.comma = marks.comma >> 63 | (reached < marks.blank ? 1 : 0);
    return ((reached & ~marks.blank) | behind) & marks.comma;
  }

  const std::size_t decimals_;
  const char letter_;
  const std::uint32_t exponent_;
  const char* begin_ = nullptr;
  std::array<Place, 1 + kChunk / 2 + Way::kSpare> places_;  // behind a 0, the end of none
};

}  // namespace korventally::engine
