// Tells an hour without any concentration from the others, as it is written.
#pragma once

#include <string_view>

namespace korventally::engine {

/// True when every value is written as zero ("0", "0.000", "-0.0E+00"). A value too small for a
/// double is none: "1e-400" is not zero. `values` must have been accepted as numbers. Costs next to
/// nothing where the first or the last value is not zero.
bool isZeroRow(std::string_view values);

}  // namespace korventally::engine
