// The fast way of ValueRow: values that all have one shape, two at a time.
//
// Needs SSE2, which every 64-bit x86 processor has; nothing newer, so that one program runs on all.
#pragma once

#include <cstddef>
#include <string_view>

namespace korventally::engine {

/// The number of the shape of a field like "1.23456E-05" with 1 to 7 decimals behind this separator
/// (a blank or a comma), or 0 when it has no such shape.
std::size_t shapeOf(char separator, std::string_view field);

/// Adds the values at `at` to the sums from `sum` on, as long as they have this shape, each with
/// one separator in front; `at` and `sum` then stand behind the last value taken. The line must be
/// followed by '\r' or '\n' and by LineReader::kPadding readable bytes.
void addShaped(std::size_t shape, const char*& at, double*& sum, double* end);

}  // namespace korventally::engine
