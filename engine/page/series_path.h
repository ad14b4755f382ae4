// The course of the totals in time as the path of a drawing, however many there are.
#pragma once

#include <string>
#include <vector>

#include "engine/page/scale.h"

namespace korventally::engine {

/// `values` follow each other without a gap and have one length, which is 1 on `x`. Where they are
/// wider than a unit of the drawing they are steps; where not, each unit has a stroke from the
/// lowest to the highest of its values. Empty for no values.
std::string coursePath(const std::vector<double>& values, const Scale& x, const Scale& y);

/// A piece of the axis, in units of the drawing.
struct Piece {
  double begin, end;
};

/// The marked ones of steps that have the length 1 on `x`, as pieces at least 1 wide; those that
/// would touch each other are one.
std::vector<Piece> markedPieces(const std::vector<bool>& marked, const Scale& x);

}  // namespace korventally::engine
