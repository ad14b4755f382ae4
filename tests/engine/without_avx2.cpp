// Answers in the place of engine/processor_x86.cpp.
#include "engine/value_decimals_x86.h"

namespace korventally::engine {

bool hasAvx2() { return false; }

}  // namespace korventally::engine
