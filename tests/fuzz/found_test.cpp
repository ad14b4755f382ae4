#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/targets.h"

namespace korventally::fuzz {
namespace {

namespace fs = std::filesystem;

/// Every input that was kept, of those that found a fault and of those that a fuzzer begins with.
TEST(Fuzz, InputsThatWereKeptBreakNothing) {
  for (const Target& target : kTargets) {
    int inputs = 0;
    for (const char* kept : {"corpus", "found"}) {
      const fs::path folder = fs::path(KORVENTALLY_FUZZ) / kept / target.name;
      if (!fs::exists(folder)) continue;
      for (const auto& entry : fs::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        EXPECT_NO_THROW(target.run(bytes)) << entry.path();
        ++inputs;
      }
    }
    EXPECT_GT(inputs, 0) << target.name;
  }
}

}  // namespace
}  // namespace korventally::fuzz
