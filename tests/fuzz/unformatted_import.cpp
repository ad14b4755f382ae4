#include <cstdint>
#include <cstring>
#include <string>

#include "tests/fuzz/imported.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

constexpr std::size_t kReceptors = 2;

/// The concentrations of all hours and groups: the first values behind the head of each record.
double totalIn(std::string_view bytes) {
  double total = 0;
  while (!bytes.empty()) {
    std::uint32_t size = 0;
    std::int32_t hours = 0;
    double values[kReceptors];
    std::memcpy(&size, bytes.data(), sizeof size);
    std::memcpy(&hours, bytes.data() + 8, sizeof hours);
    std::memcpy(values, bytes.data() + 20, sizeof values);
    if (hours == 1) total += values[0] + values[1];
    bytes.remove_prefix(size + 8);
  }
  return total;
}

}  // namespace

void unformattedImport(std::string_view bytes) {
  engine::ImportOptions options = chosenOptions(bytes);
  options.receptors = fileWith("0 0 R1\n100 0 R2\n", "receptors");
  requireImport(options, totalIn, bytes);
}

}  // namespace korventally::fuzz
