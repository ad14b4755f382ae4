// The pieces of a drawing. Lengths are in units of its view box, which is 640 wide on every screen:
// texts are larger in these units where the screen is narrow (see style.cpp), and the drawings
// leave room for the largest.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korventally::engine {

inline constexpr double kDrawingWidth = 640;
inline constexpr double kTextHeight = 24;  ///< a line of the largest text
/// How wide so many characters of the largest text are, about.
double textWidth(std::size_t characters);

/// A length, rounded to a tenth.
std::string length(double value);

/// A whole drawing: what it is and what it shows in words, for those who do not see it.
std::string drawing(double height, std::string_view title, std::string_view description,
                    std::string_view content);

std::string line(double x1, double y1, double x2, double y2, std::string_view style);
/// The same on a wider one in the colour of the paper, to be seen on whatever lies below.
std::string lineOver(double x1, double y1, double x2, double y2, std::string_view style);
std::string rectangle(double x, double y, double width, double height, std::string_view style);

/// Where a text stands from its point: it begins, is centred or ends there.
enum class Anchor { kStart, kMiddle, kEnd };
/// `text` is markup already; `style` is its class.
std::string label(double x, double y, Anchor anchor, std::string_view text,
                  std::string_view style = {});

/// A centred number or date below an axis, moved to where the drawing holds all of it.
std::string tickBelow(double x, double y, std::string_view text);

}  // namespace korventally::engine
