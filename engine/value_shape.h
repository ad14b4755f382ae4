// The fastest way of ValueRow: values that all have one shape, two at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace korventally::engine {

/// The shape of values like "1.23456E-05", with 1 to 7 decimals and an exponent of two digits,
/// together with the separators in front of them. value_shape_sse2.cpp or, where the processor has
/// no SSE2, value_plain.cpp stand behind it; the plain one knows no shape.
class ValueShape {
 public:
  /// Takes over the shape of this value and of what parts it from the value before, if it has one.
  void learn(std::string_view separators, std::string_view field);

  /// Adds the values at `at` to the sums from `sum` on, as long as they have the shape; `at` and
  /// `sum` then stand behind the last value taken. `at` stands on a separator; behind `lineEnd`
  /// there are LineReader::kPadding readable bytes.
  void add(const char*& at, const char* lineEnd, double*& sum, double* end) const;

 private:
  static constexpr std::size_t kPieces = 4;  // of 16 bytes; a longer shape is none

  bool fits(const char* text, std::size_t piece = 0) const;

  // From the first separator to the byte behind the value, and no matter what after that.
  [[maybe_unused]] alignas(16) std::uint8_t least_[16 * kPieces] = {};
  [[maybe_unused]] alignas(16) std::uint8_t span_[16 * kPieces] = {};  // largest minus least
  [[maybe_unused]] std::size_t pieces_ = 0;                            // 0: no shape
  [[maybe_unused]] std::size_t separators_ = 0;
  [[maybe_unused]] std::size_t decimals_ = 0;
};

}  // namespace korventally::engine
