// A file of its own: a program that brings its own answer is linked without it.
#include "engine/value_decimals_x86.h"

namespace korventally::engine {

bool hasAvx2() {
  static const bool kHas = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
                           __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt");
  return kHas;
}

}  // namespace korventally::engine
