#include "engine/page/map_frame.h"

#include <algorithm>
#include <vector>

#include "engine/page/scale.h"
#include "engine/page/svg.h"
#include "engine/receptor_file.h"

namespace korventally::engine {
namespace {

constexpr double kMargin = 24;  // between the outermost receptors and the axes
constexpr double kRight = 16, kTop = 8;
constexpr double kFlattest = 0.45, kTallest = 1;  // the height against the width
constexpr double kNoExtent = 1e-6;                // m: coordinates are shown with six decimals
constexpr double kAloneSpan = 100;                // m

}  // namespace

Extent extentOf(const std::vector<Receptor>& receptors) {
  const Receptor& first = receptors.front();
  Extent extent{first.x, first.x, first.y, first.y};
  for (const Receptor& receptor : receptors) {
    extent.minX = std::min(extent.minX, receptor.x);
    extent.maxX = std::max(extent.maxX, receptor.x);
    extent.minY = std::min(extent.minY, receptor.y);
    extent.maxY = std::max(extent.maxY, receptor.y);
  }
  return extent;
}

MapFrame mapFrame(const Extent& extent, double left) {
  double spanX = extent.maxX - extent.minX, spanY = extent.maxY - extent.minY;
  if (std::max(spanX, spanY) < kNoExtent) spanX = spanY = kAloneSpan;
  MapFrame frame{};
  frame.left = left;
  frame.top = kTop;
  frame.width = kDrawingWidth - left - kRight;
  const double inside = frame.width - 2 * kMargin;
  const double ratio = std::clamp(spanY / std::max(spanX, spanY * 1e-3), kFlattest, kTallest);
  frame.height = inside * ratio + 2 * kMargin;
  const double spanOfHeight = spanY / ratio;
  frame.unitsPerMetre = inside / std::max(spanX, spanOfHeight);
  const double halfX = frame.width / frame.unitsPerMetre / 2;
  const double halfY = frame.height / frame.unitsPerMetre / 2;
  const double middleX = extent.minX + (extent.maxX - extent.minX) / 2;
  const double middleY = extent.minY + (extent.maxY - extent.minY) / 2;
  frame.x = {middleX - halfX, middleX + halfX, frame.left, frame.left + frame.width};
  frame.y = {middleY - halfY, middleY + halfY, frame.top + frame.height, frame.top};
  return frame;
}

double barMetres(const MapFrame& frame) {
  const double longest = frame.width / 4 / frame.unitsPerMetre;
  const double step = roundStep(longest);
  // The next smaller of the round lengths, unless this one just fits.
  return step <= longest * (1 + 1e-9) ? step : roundStep(step / 2.5);
}

}  // namespace korventally::engine
