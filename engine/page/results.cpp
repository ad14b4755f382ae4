#include "engine/page/results.h"

#include <cstddef>
#include <string>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/exceedances.h"
#include "engine/text.h"

namespace korventally::engine {

std::size_t worstReceptor(const Exceedances& exceedances) {
  std::size_t worst = 0;
  for (std::size_t i = 1; i < exceedances.atReceptors.size(); ++i) {
    if (comesFirst(exceedances.atReceptors[i].highest, exceedances.atReceptors[worst].highest)) {
      worst = i;
    }
  }
  return worst;
}

std::string kindOfAverage(const Blocks& blocks) {
  return blocks.annual ? "annual average" : "average of " + hoursText(blocks.hours);
}

}  // namespace korventally::engine
