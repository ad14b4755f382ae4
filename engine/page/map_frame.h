// Where the receptors' coordinates lie in the drawing of the map: one scale for both axes.
#pragma once

#include <vector>

#include "engine/page/scale.h"
#include "engine/receptor_file.h"

namespace korventally::engine {

/// The smallest and the largest coordinates, in m.
struct Extent {
  double minX = 0, maxX = 0, minY = 0, maxY = 0;
};
Extent extentOf(const std::vector<Receptor>& receptors);

/// The inside of the axes in units of the drawing. Its height follows from the extent, within
/// limits: receptors on a line get some room beside it. Receptors at one place stand in the middle
/// of 100 m.
struct MapFrame {
  double left, top, width, height;
  double unitsPerMetre;
  Scale x, y;  ///< Y upwards
};

/// `left` is the room for the labels of Y.
MapFrame mapFrame(const Extent& extent, double left);

/// A round length of 1, 2 or 5 times a power of ten metres, at most a quarter of the width.
double barMetres(const MapFrame& frame);

}  // namespace korventally::engine
