#include <sstream>
#include <string>

#include "engine/import/row_layout.h"
#include "tests/fuzz/imported.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

/// The concentrations of all hours and groups.
double totalIn(std::string_view bytes) {
  std::istringstream lines{std::string(bytes)};
  std::optional<engine::RowLayout> layout;
  double total = 0;
  for (std::string row; std::getline(lines, row);) {
    if (row.starts_with('*')) continue;
    if (row.ends_with('\r')) row.pop_back();
    if (!layout) layout = engine::RowLayout::of(row);
    const bool hourly = engine::RowLayout::average(layout->key(row)) == "1-HR";
    if (hourly) total += numberIn(std::string(engine::withoutBlanks(row.substr(29, 13))));
  }
  return total;
}

}  // namespace

void formattedImport(std::string_view bytes) {
  const engine::ImportOptions options = chosenOptions(bytes);
  requireImport(options, totalIn, bytes);
}

}  // namespace korventally::fuzz
