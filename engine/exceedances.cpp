#include "engine/exceedances.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/rounding.h"

namespace korventally::engine {
namespace {

// A heap whose front is the one to drop when there are too many.
void keep(std::vector<Place>& heap, const Place& place) {
  heap.push_back(place);
  std::push_heap(heap.begin(), heap.end(), comesFirst);
  if (heap.size() <= kMostExceedancesListed) return;
  std::pop_heap(heap.begin(), heap.end(), comesFirst);
  heap.pop_back();
}

void raise(Place& highest, const Place& place, bool isFirst) {
  if (isFirst || sideOf(place.value, highest.value) > 0) highest = place;
}

}  // namespace

std::uint64_t Exceedances::receptors() const {
  const auto exceeds = [](const AtReceptor& at) { return at.exceedances > 0; };
  return static_cast<std::uint64_t>(std::ranges::count_if(atReceptors, exceeds));
}

const AtReceptor* Exceedances::mostContributed() const {
  const AtReceptor* most = nullptr;
  for (const AtReceptor& at : atReceptors) {
    if (at.exceedances == 0) continue;
    if (most == nullptr || comesFirst(at.contribution, most->contribution)) most = &at;
  }
  return most;
}

bool exceeds(double total, double standard) { return sideOf(total, standard) > 0; }

bool reaches(double contribution, double sil) { return sideOf(contribution, sil) >= 0; }

ExceedanceCount::ExceedanceCount(const Case& theCase, const Averages& averages, const Sink& sink)
    : case_(theCase), averages_(averages), sink_(sink) {
  result_.atReceptors.resize(averages.receptors());
}

void ExceedanceCount::judge(const Place& place) {
  AtReceptor& at = result_.atReceptors[place.receptor];
  raise(at.highest, place, false);
  if (!exceeds(place.value, case_.standard)) return;
  const double facility = averages_.own(1, place.block, place.receptor);
  const Place contribution{place.block, place.receptor, facility};
  raise(at.contribution, contribution, at.exceedances == 0);
  ++at.exceedances;
  ++result_.count;
  keep(result_.largest, place);
  if (reaches(facility, case_.sil)) {
    ++at.significant;
    ++result_.significant;
    keep(result_.contributions, contribution);
  }
  sink_(place);
}

Exceedances ExceedanceCount::finish() {
  std::sort_heap(result_.largest.begin(), result_.largest.end(), comesFirst);
  std::sort_heap(result_.contributions.begin(), result_.contributions.end(), comesFirst);
  return std::move(result_);
}

}  // namespace korventally::engine
