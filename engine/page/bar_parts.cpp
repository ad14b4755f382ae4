#include "engine/page/bar_parts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"

namespace korventally::engine {
namespace {

double sumOver(const Averages& averages, std::size_t group, const std::vector<Place>& places) {
  double sum = 0;
  for (const Place& place : places) sum += averages.own(group, place.block, place.receptor);
  return sum;
}

}  // namespace

std::vector<Place> placesOfBars(const Judgement& judgement) {
  const Exceedances& exceedances = judgement.exceedances;
  std::vector<Place> places = exceedances.largest;
  if (places.empty()) {
    for (const AtReceptor& at : exceedances.atReceptors) places.push_back(at.highest);
    std::ranges::sort(places, comesFirst);
  }
  places.resize(std::min(places.size(), kMostBars));
  return places;
}

std::vector<std::size_t> colouredGroups(const Averages& averages,
                                        const std::vector<Place>& places) {
  std::vector<Place> sums;  // the group stands in the place of the receptor
  for (std::size_t group = 2; group < averages.groups(); ++group) {
    sums.push_back({0, group, sumOver(averages, group, places)});
  }
  std::ranges::sort(sums, comesFirst);
  std::vector<std::size_t> groups;
  for (std::size_t i = 0; i < std::min(sums.size(), kMostColours); ++i) {
    groups.push_back(sums[i].receptor);
  }
  return groups;
}

std::vector<BarPart> partsOf(const Case& theCase, const Averages& averages,
                             const std::vector<std::size_t>& coloured, const Place& place) {
  const auto own = [&](std::size_t group) {
    return averages.own(group, place.block, place.receptor);
  };
  std::vector<BarPart> parts = {{"facility", "2", own(1)}};
  double rest = 0;
  for (std::size_t group = 2; group < averages.groups(); ++group) rest += own(group);
  for (std::size_t i = 0; i < coloured.size(); ++i) {
    parts.push_back({"g" + std::to_string(i), std::to_string(coloured[i] + 1), own(coloured[i])});
    rest -= parts.back().value;
  }
  // Nothing remains of the sum but its rounding when every group has a colour.
  if (averages.groups() > coloured.size() + 2) parts.push_back({"rest", "+", rest});
  parts.push_back({"background", "B", theCase.background});
  parts.push_back({"leftover", "?", averages.leftOver(place.block, place.receptor)});
  std::erase_if(parts, [](const BarPart& part) { return part.value <= 0; });
  return parts;
}

}  // namespace korventally::engine
