// How coordinates are printed: every axis with one number of decimals, so that they line up.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/receptor_file.h"

namespace korventally::engine {

/// The coordinates of all receptors along one axis.
class Axis {
 public:
  /// Takes the fewest decimals, 1 to 6, that show every coordinate as the receptor file gives it.
  Axis(const std::vector<Receptor>& receptors, double Receptor::*coordinate);

  std::string text(const Receptor& receptor) const;
  std::size_t width() const { return width_; }  ///< of the widest text, at least 9

 private:
  double Receptor::*coordinate_;
  int decimals_ = 1;
  std::size_t width_ = 9;
};

}  // namespace korventally::engine
