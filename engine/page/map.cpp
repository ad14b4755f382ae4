#include "engine/page/map.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "engine/columns.h"
#include "engine/exceedances.h"
#include "engine/page/html.h"
#include "engine/page/limit_classes.h"
#include "engine/page/map_frame.h"
#include "engine/page/map_marks.h"
#include "engine/page/results.h"
#include "engine/page/scale.h"
#include "engine/page/svg.h"
#include "engine/receptor_file.h"
#include "engine/report_rows.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr int kMostTicks = 6;

std::size_t longest(const Ticks& ticks) {
  std::size_t size = 0;
  for (const double value : ticks.values) size = std::max(size, ticks.text(value).size());
  return size;
}

// The corners of a star, or of a triangle, about the origin.
std::string corners(int count, double outer, double inner) {
  std::string points;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * std::acos(-1.0) * i / count;
    const double radius = i % 2 == 0 ? outer : inner;
    points += (i > 0 ? " " : "") + length(radius * std::sin(angle)) + "," +
              length(-radius * std::cos(angle));
  }
  return points;
}

std::string shapes(double radius) {
  const std::string r = length(radius);
  return element("defs", "<circle id=\"o\" r=\"" + r + "\"/><polygon id=\"e\" points=\"" +
                             corners(3, 1.45 * radius, 1.45 * radius) +
                             "\"/><polygon id=\"s\" points=\"" +
                             corners(10, 1.9 * radius, 0.8 * radius) + "\"/>");
}

const char* idOf(Shape shape) {
  return shape == Shape::kSignificant ? "s" : shape == Shape::kExceedance ? "e" : "o";
}

class Map {
 public:
  explicit Map(const Results& results)
      : results_(results),
        exceedances_(results.judgement.exceedances),
        receptors_(results.names.receptors),
        extent_(extentOf(receptors_)),
        frame_(mapFrame(extent_, leftRoom())),
        classes_(results.names.theCase.standard, at(worstReceptor(exceedances_)).highest.value),
        drawn_(receptorsToDraw(receptors_, exceedances_, frame_)) {}

  std::string text() const {
    const double height = frame_.top + frame_.height + 2.6 * kTextHeight;
    return element("figure", drawing(height, "Map of the receptors", description(),
                                     shapes(radius()) + axes() + marks() + worst() + bar()) +
                                 legend() + element("figcaption", words()));
  }

 private:
  const AtReceptor& at(std::size_t i) const { return exceedances_.atReceptors[i]; }

  // The labels of Y are those of any frame, since their number is that of the largest.
  double leftRoom() const {
    const MapFrame widest = mapFrame(extent_, 0);
    return textWidth(longest(ticksBetween(widest.y.low, widest.y.high, kMostTicks))) + 16;
  }

  double radius() const {
    const double room = frame_.width * frame_.height / static_cast<double>(drawn_.size());
    return std::clamp(0.2 * std::sqrt(room), 2.5, 7.0);
  }

  std::string figureOf(std::size_t i) const {
    return groupFigure(results_.names, 0, at(i).highest.value);
  }

  std::string axes() const {
    const double right = frame_.left + frame_.width, bottom = frame_.top + frame_.height;
    std::string text = rectangle(frame_.left, frame_.top, frame_.width, frame_.height, "frame");
    const Ticks ofX = ticksBetween(frame_.x.low, frame_.x.high, mostOfX());
    for (const double value : ofX.values) {
      text += line(frame_.x(value), frame_.top, frame_.x(value), bottom, "grid") +
              tickBelow(frame_.x(value), bottom + 6, ofX.text(value));
    }
    const Ticks ofY = ticksBetween(frame_.y.low, frame_.y.high, kMostTicks);
    for (const double value : ofY.values) {
      text += line(frame_.left, frame_.y(value), right, frame_.y(value), "grid") +
              label(frame_.left - 8, frame_.y(value), Anchor::kEnd, ofY.text(value), "beside");
    }
    return text;
  }

  int mostOfX() const {
    const std::size_t size = longest(ticksBetween(frame_.x.low, frame_.x.high, kMostTicks));
    return std::clamp(static_cast<int>(frame_.width / (textWidth(size) + 24)), 1, kMostTicks);
  }

  // Those that matter most lie on top.
  std::string marks() const {
    std::string text = "<g class=\"marks\">\n";
    for (std::size_t after = drawn_.size(); after > 0; --after) {
      const std::size_t i = drawn_[after - 1];
      text += "<use href=\"#" + std::string(idOf(shapeOf(at(i)))) + "\" class=\"c" +
              std::to_string(classes_.classOf(at(i).highest.value)) + "\" x=\"" +
              length(frame_.x(receptors_[i].x)) + "\" y=\"" + length(frame_.y(receptors_[i].y)) +
              "\">" + element("title", escaped(receptors_[i].id + ": " + figureOf(i))) + "</use>\n";
    }
    return text + "</g>\n";
  }

  // Its name stands above it, or below where there is no room.
  std::string worst() const {
    const std::size_t i = drawn_.front();
    const double x = frame_.x(receptors_[i].x), y = frame_.y(receptors_[i].y);
    const double ring = 2.6 * radius();
    const std::string name = receptors_[i].id + ": " + figureOf(i);
    const double half = std::min(textWidth(name.size()), frame_.width) / 2;
    const double middle = std::clamp(x, frame_.left + half, frame_.left + frame_.width - half);
    const bool isAbove = y - ring - 1.2 * kTextHeight > frame_.top;
    return "<circle class=\"ring\" cx=\"" + length(x) + "\" cy=\"" + length(y) + "\" r=\"" +
           length(ring) + "\"/>" +
           label(middle, isAbove ? y - ring - 6 : y + ring + 6, Anchor::kMiddle, escaped(name),
                 isAbove ? "halo" : "halo below");
  }

  std::string bar() const {
    const double metres = barMetres(frame_), units = metres * frame_.unitsPerMetre;
    const double y = frame_.top + frame_.height + 2 * kTextHeight;
    const std::string name =
        metres < 1000 ? shortest(metres) + " m" : shortest(metres / 1000) + " km";
    return line(frame_.left, y, frame_.left + units, y, "bar") +
           line(frame_.left, y - 6, frame_.left, y + 6, "bar") +
           line(frame_.left + units, y - 6, frame_.left + units, y + 6, "bar") +
           label(frame_.left + units + 10, y, Anchor::kStart, name, "beside");
  }

  std::string legend() const {
    const std::string limit = escaped(results_.names.theCase.standardText);
    std::string items = element("li", "<b>&#9733;</b> significant exceedance") +
                        element("li", "<b>&#9650;</b> exceedance, none significant") +
                        element("li", "<b>&#9679;</b> no exceedance");
    std::string colours;
    for (std::size_t i = 0; i < kClassesBelow + kClassesAbove; ++i) {
      const std::string bounds = classes_.text(i);
      if (bounds.empty()) continue;
      if (i == kClassesBelow) colours += element("li class=\"limit\"", "limit " + limit);
      colours += element("li", "<i class=\"c" + std::to_string(i) + "\"></i> " + bounds);
    }
    return element("ul class=\"legend\"", items) + element("ul class=\"legend\"", colours) + "\n";
  }

  std::string words() const {
    const std::size_t i = worstReceptor(exceedances_);
    std::string text =
        "Each receptor at its X and Y (m), coloured by the highest total that was "
        "judged there (ug/m**3). The highest of all is " +
        figureOf(i) + ", at receptor " + receptors_[i].id + ".";
    if (drawn_.size() < receptors_.size()) {
      text += " Drawn are " + grouped(drawn_.size()) + " of " + grouped(receptors_.size()) +
              " receptors: first those that exceed, of the others the highest in each small "
              "square.";
    }
    return sentence(text);
  }

  std::string description() const {
    return sentence(counted(exceedances_.receptors(), "receptor") + " of " +
                    grouped(receptors_.size()) + " with an exceedance of " +
                    results_.names.theCase.standardText + " ug/m**3. ") +
           words();
  }

  const Results& results_;
  const Exceedances& exceedances_;
  const std::vector<Receptor>& receptors_;
  Extent extent_;
  MapFrame frame_;
  LimitClasses classes_;
  std::vector<std::size_t> drawn_;
};

}  // namespace

std::string mapOf(const Results& results) { return Map(results).text(); }

}  // namespace korventally::engine
