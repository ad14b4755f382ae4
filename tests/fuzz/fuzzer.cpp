// One target as a program of libFuzzer's.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  korventally::fuzz::KORVENTALLY_TARGET({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
