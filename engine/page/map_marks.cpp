#include "engine/page/map_marks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <set>
#include <utility>
#include <vector>

#include "engine/averages.h"
#include "engine/exceedances.h"
#include "engine/page/map_frame.h"
#include "engine/page/results.h"
#include "engine/receptor_file.h"

namespace korventally::engine {
namespace {

constexpr double kSquare = 14;  // units of the drawing

std::vector<std::size_t> byImportance(const Exceedances& exceedances) {
  std::vector<std::size_t> order(exceedances.atReceptors.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const std::size_t worst = worstReceptor(exceedances);
  std::ranges::sort(order, [&](std::size_t one, std::size_t other) {
    if (one == worst || other == worst) return one == worst && other != worst;
    const AtReceptor& first = exceedances.atReceptors[one];
    const AtReceptor& second = exceedances.atReceptors[other];
    if (shapeOf(first) != shapeOf(second)) return shapeOf(first) > shapeOf(second);
    return comesFirst(first.highest, second.highest);
  });
  return order;
}

}  // namespace

Shape shapeOf(const AtReceptor& at) {
  if (at.significant > 0) return Shape::kSignificant;
  return at.exceedances > 0 ? Shape::kExceedance : Shape::kNoExceedance;
}

std::vector<std::size_t> receptorsToDraw(const std::vector<Receptor>& receptors,
                                         const Exceedances& exceedances, const MapFrame& frame) {
  std::vector<std::size_t> order = byImportance(exceedances);
  if (order.size() <= kMostMarks) return order;
  std::vector<std::size_t> drawn;
  std::set<std::pair<int, int>> taken;
  for (const std::size_t i : order) {
    const std::pair square(static_cast<int>(std::floor(frame.x(receptors[i].x) / kSquare)),
                           static_cast<int>(std::floor(frame.y(receptors[i].y) / kSquare)));
    const bool isFree = taken.insert(square).second;
    if (!isFree && shapeOf(exceedances.atReceptors[i]) == Shape::kNoExceedance) continue;
    drawn.push_back(i);
    if (drawn.size() == kMostMarks) break;
  }
  return drawn;
}

}  // namespace korventally::engine
