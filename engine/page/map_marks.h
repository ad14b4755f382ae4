// Which receptors the map draws, and how.
#pragma once

#include <cstddef>
#include <vector>

#include "engine/exceedances.h"
#include "engine/page/map_frame.h"
#include "engine/receptor_file.h"

namespace korventally::engine {

inline constexpr std::size_t kMostMarks = 2000;

enum class Shape { kNoExceedance, kExceedance, kSignificant };
Shape shapeOf(const AtReceptor& at);

/// The receptors to draw, those that matter most first: the worst, the significant, the exceeding,
/// each by its highest total. With more than kMostMarks receptors, those that do not exceed are
/// drawn once in each small square, and no more than kMostMarks altogether.
std::vector<std::size_t> receptorsToDraw(const std::vector<Receptor>& receptors,
                                         const Exceedances& exceedances, const MapFrame& frame);

}  // namespace korventally::engine
