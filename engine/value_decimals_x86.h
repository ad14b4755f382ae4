// What the ways of reading fixed decimals share that processors of the x86 family have. There are
// two passes over a kilobyte at a time: the first finds where the values end (value_ends.h); the
// second takes the digits in front of several ends at once.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "engine/value_decimals.h"
#include "engine/value_ends.h"

namespace korventally::engine {

/// Whether the processor and its system offer AVX2 and what goes with it.
bool hasAvx2();

/// ValueDecimals::add() for processors with AVX2, four values at a time, and for all others, two.
bool addByAvx2(const DecimalForm& form, const char*& at, const char* lineEnd, double*& sum,
               double* end);
bool addBySse2(const DecimalForm& form, const char*& at, const char* lineEnd, double*& sum,
               double* end);

inline constexpr int kMostDecimals = 12;
inline constexpr int kLargestExact = 22;  // ten to this power is a double

// Digits in a window of sixteen bytes are joined in pairs, fours and eights. The point counts as a
// zero that takes no place: whatever is joined with a side that holds it moves one place less.
struct Weights {
  alignas(16) std::int16_t pairs[8] = {};  // 256 times, and 1 for what stays in place
  alignas(16) std::int16_t fours[8] = {};
  alignas(16) std::int16_t eights[8] = {};
  int all = 0;
};

constexpr int tenTo(int power) {
  int number = 1;
  for (; power > 0; --power) number *= 10;
  return number;
}

constexpr Weights weightsFor(std::size_t decimals) {
  Weights weights;
  const std::size_t point = Window::kSize - 1 - decimals;
  // Ten to the number of places of what stands there.
  const auto places = [point](std::size_t first, int size) {
    const bool pointIsThere = point >= first && point < first + static_cast<std::size_t>(size);
    return tenTo(pointIsThere ? size - 1 : size);
  };
  for (std::size_t i = 0; i < 8; ++i) {
    const bool stays = i % 2 != 0;
    weights.pairs[i] = static_cast<std::int16_t>(256 * places(2 * i + 1, 1) + 1);
    weights.fours[i] = static_cast<std::int16_t>(stays ? 1 : places(2 * i + 2, 2));
    weights.eights[i] = static_cast<std::int16_t>(stays ? 1 : places(4 * (i % 4) + 4, 4));
  }
  weights.all = places(8, 8);
  return weights;
}

inline constexpr auto kWeights = [] {
  std::array<Weights, kMostDecimals + 1> all{};
  for (std::size_t k = 0; k < all.size(); ++k) all[k] = weightsFor(k);
  return all;
}();

inline constexpr auto kPowers = [] {
  std::array<double, kLargestExact + 1> powers{};
  double power = 1;
  for (double& each : powers) {
    each = power;
    power *= 10;
  }
  return powers;
}();

// Sixteen zeros and sixteen ones: what lies this many bytes in front of an end belongs to it.
inline constexpr auto kOwn = [] {
  std::array<unsigned char, 2 * Window::kSize> own{};
  for (std::size_t i = Window::kSize; i < own.size(); ++i) own[i] = 0xFF;
  return own;
}();

// Adds fewer values than are taken at once, the others being zeros: up to the first one without a
// proper window. Returns their number.
template <class Way, class EndsOfValues>
std::size_t addRest(Way& way, const EndsOfValues& ends, std::size_t i, std::size_t count,
                    double* sums) {
  Window windows[Way::kAtOnce];
  std::size_t taken = 0;
  while (taken < Way::kAtOnce && i + taken < count) {
    windows[taken] = ends.window(i + taken);
    if (!ends.fitsBehindGap(windows[taken])) break;
    ++taken;
  }
  for (std::size_t k = taken; k < Way::kAtOnce; ++k) windows[k] = {ends.behind(0), 0};
  double some[Way::kAtOnce] = {};
  std::copy_n(sums + i, taken, some);
  way.add(windows, some);
  std::copy_n(some, taken, sums + i);
  return taken;
}

template <class Way, bool HasExponent>
bool addDecimals(const DecimalForm& form, const char*& at, const char* lineEnd, double*& sum,
                 double* end) {
  Way way(kWeights[form.decimals], kPowers[form.decimals + static_cast<std::size_t>(form.power)]);
  Ends<Way, HasExponent> ends(form);
  for (std::size_t i = 1; i > 0 && sum != end; sum += i) {
    const std::size_t count = std::min(ends.find(at, lineEnd), static_cast<std::size_t>(end - sum));
    for (i = 0; i + Way::kAtOnce <= count; i += Way::kAtOnce) {
      Window windows[Way::kAtOnce];
      bool fit = true;  // of all at once, for one branch instead of many
      for (std::size_t k = 0; k < Way::kAtOnce; ++k) {
        windows[k] = ends.window(i + k);
        fit = fit & ends.fits(windows[k]);
      }
      if (!fit && !std::ranges::all_of(windows, [&](Window& w) { return ends.fitsBehindGap(w); })) {
        break;
      }
      way.add(windows, sum + i);
    }
    if (i != count) i += addRest(way, ends, i, count, sum);
    at = ends.behind(i);
  }
  return !way.tooLarge();
}

}  // namespace korventally::engine
