// What the stacked bars are made of. All concentrations here are in ug/m**3.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/judgement.h"

namespace korventally::engine {

inline constexpr std::size_t kMostBars = 12;
inline constexpr std::size_t kMostColours = 6;

/// The largest exceedances; where nothing exceeds, the receptors' highest totals, the largest
/// first. At most kMostBars. The value is the total.
std::vector<Place> placesOfBars(const Judgement& judgement);

/// The groups behind the facility that get a colour of their own: those with the largest
/// contributions to all bars together, the largest first.
std::vector<std::size_t> colouredGroups(const Averages& averages, const std::vector<Place>& places);

struct BarPart {
  std::string style;  ///< its class in the style sheet
  std::string sign;   ///< what stands in it, if there is room: a group's number in the case
  double value = 0;   ///< above zero
};

/// The facility, the coloured groups, all other groups, the background, and what is left over.
/// Together they are the total, or more where the groups are.
std::vector<BarPart> partsOf(const Case& theCase, const Averages& averages,
                             const std::vector<std::size_t>& coloured, const Place& place);

}  // namespace korventally::engine
