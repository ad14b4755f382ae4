// A value as Fortran's F13.5 prints it, read eight bytes at a time.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace korventally::engine {

struct FixedValue {
  std::int64_t digits = -1;  ///< the number times 100,000; -1: the field has another form
  std::size_t blanks = 0;    ///< in front of it
};

inline constexpr std::size_t kFixedWidth = 13;

namespace fixed_value {

static_assert(std::endian::native == std::endian::little,
              "the first digit lies in the lowest byte");

inline constexpr std::uint64_t kZeros = 0x3030303030303030;  // "00000000"

inline std::uint64_t eightBytes(const char* text) {
  std::uint64_t bytes;
  std::memcpy(&bytes, text, sizeof bytes);
  return bytes;
}

// Whether all eight are from 0 to 9.
inline bool areDigits(std::uint64_t bytes) {
  return ((bytes | (bytes + 0x7676767676767676)) & 0x8080808080808080) == 0;
}

// Eight digits, the first one in the lowest byte, as pairs, then fours, then one number.
inline std::int64_t joined(std::uint64_t digits) {
  digits = (digits * (1 + (10 << 8)) >> 8) & 0x00FF00FF00FF00FF;
  digits = (digits * (1 + (100 << 16)) >> 16) & 0x0000FFFF0000FFFF;
  return static_cast<std::int64_t>(digits * (1 + (std::uint64_t{10000} << 32)) >> 32);
}

}  // namespace fixed_value

/// The value of these thirteen bytes: blanks, one to seven digits, a point, five digits.
inline FixedValue fixedValue(const char* field) {
  using namespace fixed_value;
  constexpr std::uint64_t kBlankBits = 0x1010101010101010;
  constexpr std::size_t kPoint = 7, kDecimals = 5;
  // The seven bytes in front of the point, with a zero before them; a blank becomes a zero too.
  const std::uint64_t front = eightBytes(field) << 8 | '0';
  const std::uint64_t whole = (front | kBlankBits) ^ kZeros;
  const std::uint64_t isBlank = (~front & kBlankBits) >> 4;
  const std::uint64_t decimals =
      (eightBytes(field + kDecimals) ^ kZeros) & ~std::uint64_t{0xFFFFFF};
  const auto blanks = static_cast<std::size_t>(isBlank * 0x0101010101010101 >> 56);
  // As many blanks as there are stand in front; none of them was another byte without that bit.
  const std::uint64_t leading =
      (std::uint64_t{0x0101010101010101} << 8) & ((std::uint64_t{1} << (8 * blanks + 7)) - 1);
  if (field[kPoint] != '.' || blanks == kPoint || isBlank != leading ||
      (whole & isBlank * 0xFF) != 0 || !areDigits(whole) || !areDigits(decimals)) {
    return {};
  }
  return {joined(whole) * 100000 + joined(decimals), blanks};
}

}  // namespace korventally::engine
