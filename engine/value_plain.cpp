// For processors without SSE2: no value has a form of its own, and all of them are read one by one.
#include <string_view>

#include "engine/value_decimals.h"
#include "engine/value_shape.h"

namespace korventally::engine {

void ValueShape::learn(std::string_view, std::string_view) {}

void ValueShape::add(const char*&, const char*, double*&, double*) const {}

void ValueDecimals::learn(int, std::string_view) {}

bool ValueDecimals::add(const char*&, const char*, double*&, double*) const { return true; }

}  // namespace korventally::engine
