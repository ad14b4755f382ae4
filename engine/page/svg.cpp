#include "engine/page/svg.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/columns.h"
#include "engine/page/html.h"

namespace korventally::engine {
namespace {

std::string attribute(const char* name, std::string_view value) {
  return std::string(" ") + name + "=\"" + std::string(value) + "\"";
}

std::string number(const char* name, double value) { return attribute(name, length(value)); }

}  // namespace

double textWidth(std::size_t characters) { return 12.5 * static_cast<double>(characters); }

std::string length(double value) {
  std::string text = fixed(value, 1, 40);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

std::string drawing(double height, std::string_view title, std::string_view description,
                    std::string_view content) {
  const std::string box = "0 0 " + length(kDrawingWidth) + " " + length(height);
  return element("svg role=\"img\" viewBox=\"" + box + "\"",
                 element("title", title) + element("desc", description) + std::string(content)) +
         "\n";
}

std::string line(double x1, double y1, double x2, double y2, std::string_view style) {
  return "<line" + attribute("class", style) + number("x1", x1) + number("y1", y1) +
         number("x2", x2) + number("y2", y2) + "/>";
}

std::string lineOver(double x1, double y1, double x2, double y2, std::string_view style) {
  return line(x1, y1, x2, y2, "under") + line(x1, y1, x2, y2, style);
}

std::string rectangle(double x, double y, double width, double height, std::string_view style) {
  return "<rect" + attribute("class", style) + number("x", x) + number("y", y) +
         number("width", width) + number("height", height) + "/>";
}

std::string label(double x, double y, Anchor anchor, std::string_view text,
                  std::string_view style) {
  const char* const where = anchor == Anchor::kStart    ? "start"
                            : anchor == Anchor::kMiddle ? "middle"
                                                        : "end";
  std::string tag = "text" + number("x", x) + number("y", y) + attribute("text-anchor", where);
  if (!style.empty()) tag += attribute("class", style);
  return element(tag, text);
}

std::string tickBelow(double x, double y, std::string_view text) {
  const double half = std::min(textWidth(text.size()), kDrawingWidth) / 2;
  return label(std::clamp(x, half, kDrawingWidth - half), y, Anchor::kMiddle, text, "below");
}

}  // namespace korventally::engine
