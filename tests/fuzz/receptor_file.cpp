#include "engine/receptor_file.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "engine/columns.h"
#include "engine/fault.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

engine::Receptors readFrom(std::string_view bytes, bool ranked) {
  engine::InputFile file(fileWith(bytes));
  return engine::readReceptors(file, ranked ? 2 : 1);
}

std::string lineOf(const engine::Receptor& receptor) {
  return engine::shortest(receptor.x) + "," + engine::shortest(receptor.y) + " " + receptor.id +
         "\n";
}

std::string written(const engine::Receptors& receptors) {
  std::string text;
  if (!receptors.isRanked) {
    for (const engine::Receptor& receptor : receptors.list) text += lineOf(receptor);
  }
  for (const engine::RankedValue& ranked : receptors.ranked) {
    text +=
        "1 " + engine::shortest(ranked.value) + " " + lineOf(receptors.list.at(ranked.receptor));
  }
  return text;
}

void requireSound(const engine::Receptors& receptors) {
  require(!receptors.list.empty(), "at least one receptor");
  const std::size_t kept = receptors.isRanked ? receptors.ranked.size() : receptors.list.size();
  require(receptors.list.front().line + kept == receptors.lines + 1, "no line is passed over");
  std::vector<std::string> ids;
  for (const engine::Receptor& receptor : receptors.list) {
    require(std::abs(receptor.x) <= 1e9 && std::abs(receptor.y) <= 1e9, "places that can be");
    require(engine::isReceptorId(receptor.id), "names that can be");
    require(receptor.line > 0 && receptor.line <= receptors.lines, "lines that can be");
    ids.push_back(receptor.id);
  }
  std::ranges::sort(ids);
  require(std::ranges::adjacent_find(ids) == ids.end(), "no name twice");
}

}  // namespace

void receptorFile(std::string_view bytes) {
  const bool ranked = takeChoice(bytes, 2) == 1;
  try {
    const engine::Receptors receptors = readFrom(bytes, ranked);
    requireSound(receptors);
    const std::string text = written(receptors);
    require(written(readFrom(text, ranked)) == text, "what was read can be written and read again");
  } catch (const engine::Fault&) {
  }
}

}  // namespace korventally::fuzz
