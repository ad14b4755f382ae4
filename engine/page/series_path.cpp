#include "engine/page/series_path.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "engine/page/scale.h"
#include "engine/page/svg.h"

namespace korventally::engine {
namespace {

constexpr double kLeastStroke = 0.8;

std::string steps(const std::vector<double>& values, const Scale& x, const Scale& y) {
  std::string path = "M" + length(x(0)) + "," + length(y(values.front()));
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) path += "V" + length(y(values[i]));
    path += "H" + length(x(static_cast<double>(i + 1)));
  }
  return path;
}

std::string stroke(double x, double low, double high) {
  const double longer = std::max(0.0, kLeastStroke - (low - high)) / 2;
  return "M" + length(x) + "," + length(low + longer) + "V" + length(high - longer);
}

std::string strokes(const std::vector<double>& values, const Scale& x, const Scale& y) {
  std::string path;
  for (std::size_t i = 0; i < values.size();) {
    const double unit = std::floor(x(static_cast<double>(i) + 0.5));
    // The last value of the unit before leads here, so that nothing is torn apart.
    double least = values[i == 0 ? 0 : i - 1], most = least;
    for (; i < values.size() && std::floor(x(static_cast<double>(i) + 0.5)) == unit; ++i) {
      least = std::min(least, values[i]);
      most = std::max(most, values[i]);
    }
    path += stroke(unit + 0.5, y(least), y(most));
  }
  return path;
}

}  // namespace

std::string coursePath(const std::vector<double>& values, const Scale& x, const Scale& y) {
  if (values.empty()) return {};
  return x(1) - x(0) > 1 ? steps(values, x, y) : strokes(values, x, y);
}

std::vector<Piece> markedPieces(const std::vector<bool>& marked, const Scale& x) {
  std::vector<Piece> pieces;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (!marked[i]) continue;
    const double begin = x(static_cast<double>(i));
    const double end = std::max(begin + 1, x(static_cast<double>(i + 1)));
    if (!pieces.empty() && begin <= pieces.back().end + 1e-6) {
      pieces.back().end = end;
    } else {
      pieces.push_back({begin, end});
    }
  }
  return pieces;
}

}  // namespace korventally::engine
