#include "engine/run_years.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"

namespace korventally::engine {

std::vector<RunYear> yearsOf(const Blocks& blocks) {
  std::vector<RunYear> years(1);
  for (std::int64_t block = 0; block < blocks.count; ++block) {
    const auto index = static_cast<std::size_t>(block);
    const Hour nextYear = yearsAfter(blocks.start, static_cast<int>(years.size()));
    if (blocks.startOf(block) >= nextYear) years.push_back({index, index});
    years.back().endBlock = index + 1;
  }
  return years;
}

LastYear lastYearOf(const Blocks& blocks, std::size_t years) {
  const Hour begin = yearsAfter(blocks.start, static_cast<int>(years) - 1);
  const Hour end = yearsAfter(blocks.start, static_cast<int>(years));
  return {blocks.end() + blocks.unused - begin, end - begin};
}

}  // namespace korventally::engine
