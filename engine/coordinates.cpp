#include "engine/coordinates.h"

#include <algorithm>
#include <string>
#include <vector>

#include "engine/columns.h"
#include "engine/receptor_file.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr int kMostDecimals = 6;
constexpr int kAnyWidth = 300;

int decimalsOf(double value, int atLeast) {
  int decimals = atLeast;
  while (decimals < kMostDecimals && parseDecimal(fixed(value, decimals, kAnyWidth)) != value) {
    ++decimals;
  }
  return decimals;
}

}  // namespace

Axis::Axis(const std::vector<Receptor>& receptors, double Receptor::*coordinate)
    : coordinate_(coordinate) {
  for (const Receptor& receptor : receptors) {
    decimals_ = decimalsOf(receptor.*coordinate, decimals_);
  }
  for (const Receptor& receptor : receptors) width_ = std::max(width_, text(receptor).size());
}

std::string Axis::text(const Receptor& receptor) const {
  return fixed(receptor.*coordinate_, decimals_, kAnyWidth);
}

}  // namespace korventally::engine
