#include "engine/page/bars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/page/bar_parts.h"
#include "engine/page/html.h"
#include "engine/page/results.h"
#include "engine/page/scale.h"
#include "engine/page/svg.h"
#include "engine/report_rows.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr double kLeft = 10, kRight = 30;
constexpr double kTop = 2.4 * kTextHeight;  // the names of the limits
constexpr double kBar = 22;
constexpr double kRow = kTextHeight + kBar + 10;

class Bars {
 public:
  explicit Bars(const Results& results)
      : results_(results),
        case_(results.names.theCase),
        places_(placesOfBars(results.judgement)),
        coloured_(colouredGroups(results.averages, places_)) {
    for (const Place& place : places_)
      parts_.push_back(partsOf(case_, results.averages, coloured_, place));
    scale_ = {0, 1.02 * largest(), kLeft, kDrawingWidth - kRight};
    bottom_ = kTop + kRow * static_cast<double>(places_.size());
  }

  std::string text() const {
    // Lines lie over the bars, and texts over the lines.
    std::string content = axis(), texts;
    for (std::size_t i = 0; i < places_.size(); ++i) {
      content += bar(i);
      texts += textsOf(i);
    }
    content += limits() + texts;
    return element("figure", drawing(bottom_ + 1.4 * kTextHeight, title(), description(), content) +
                                 legend() + element("figcaption", sentence(words())));
  }

 private:
  bool exceeds() const { return results_.judgement.exceedances.count > 0; }

  double largest() const {
    double value = std::max(case_.standard, case_.sil);
    for (const auto& parts : parts_) {
      double sum = 0;
      for (const BarPart& part : parts) sum += part.value;
      value = std::max(value, sum);
    }
    for (const Place& place : places_) value = std::max(value, place.value);
    return value;
  }

  std::string axis() const {
    std::string text;
    const Ticks ticks = ticksBetween(scale_.low, scale_.high, 5);
    for (const double value : ticks.values) {
      text += line(scale_(value), kTop, scale_(value), bottom_, "grid") +
              tickBelow(scale_(value), bottom_ + 6, ticks.text(value));
    }
    return text;
  }

  static double topOf(std::size_t i) { return kTop + kRow * static_cast<double>(i) + kTextHeight; }

  // Where the groups are more than the total, it lies within the bar.
  std::string bar(std::size_t i) const {
    const double top = topOf(i);
    std::string text;
    double from = 0;
    for (const BarPart& part : parts_[i]) {
      const double x = scale_(from);
      from += part.value;
      text += rectangle(x, top, scale_(from) - x, kBar, "part " + part.style);
    }
    const double end = scale_(places_[i].value), sil = scale_(case_.sil);
    return text + line(end, top - 3, end, top + kBar + 3, "total") +
           lineOver(sil, top - 3, sil, top + kBar + 3, "sil") + "\n";
  }

  std::string textsOf(std::size_t i) const {
    const ExceedanceRow row = exceedanceRow(results_.names, results_.averages, places_[i]);
    const std::string name =
        std::to_string(i + 1) + "  " + row.place.receptor + "  " + row.place.hour + "  ";
    std::string text = label(kLeft, topOf(i) - 5, Anchor::kStart,
                             escaped(name) + element("tspan class=\"strong\"", row.total), "halo") +
                       "\n";
    double from = 0;
    for (const BarPart& part : parts_[i]) {
      text += sign(part, scale_(from), scale_(from + part.value), topOf(i) + kBar / 2);
      from += part.value;
    }
    return text;
  }

  // In the middle of its part, or where no line crosses it; nowhere when the part is too small.
  std::string sign(const BarPart& part, double begin, double end, double y) const {
    const double width = textWidth(part.sign.size());
    if (end - begin < width + 4) return {};
    for (const double share : {0.5, 0.3, 0.7}) {
      const double x = begin + share * (end - begin);
      const double nearest =
          std::min(std::abs(x - scale_(case_.standard)), std::abs(x - scale_(case_.sil)));
      const bool isInside = x - width / 2 > begin && x + width / 2 < end;
      if (nearest < width / 2 + 3 || !isInside) continue;
      return label(x, y, Anchor::kMiddle, part.sign, "beside sign on-" + part.style);
    }
    return {};
  }

  // The two may lie close together, so that each has a line of its own.
  std::string limits() const {
    const double limit = scale_(case_.standard), sil = scale_(case_.sil);
    return lineOver(limit, 1.1 * kTextHeight, limit, bottom_, "limit-line") +
           name(limit, 0.9 * kTextHeight, "limit " + case_.standardText, "limit-name") +
           line(sil, 2.1 * kTextHeight, sil, kTop + kTextHeight, "sil") +
           name(sil, 1.9 * kTextHeight, "SIL " + case_.silText, "sil-name halo");
  }

  // Beside the line on the side where there is room.
  static std::string name(double x, double y, const std::string& text, const char* style) {
    const bool isRight = x > kDrawingWidth / 2;
    return label(isRight ? x + 4 : x - 4, y, isRight ? Anchor::kEnd : Anchor::kStart, escaped(text),
                 style);
  }

  static std::string item(const std::string& style, const std::string& sign,
                          const std::string& name) {
    return element("li", element("i class=\"key " + style + "\"", sign) + " " + escaped(name));
  }

  std::string legend() const {
    std::string items = item("facility", "2", case_.groups[1].name);
    for (std::size_t i = 0; i < coloured_.size(); ++i) {
      items += item("g" + std::to_string(i), std::to_string(coloured_[i] + 1),
                    case_.groups[coloured_[i]].name);
    }
    const std::size_t rest = case_.groups.size() - 2 - coloured_.size();
    if (rest > 0) items += item("rest", "+", "and " + counted(rest, "group"));
    if (case_.background > 0)
      items += item("background", "B", "background " + case_.backgroundText);
    items += item("leftover", "?", "left over");
    return element("ul class=\"legend\"", items) + "\n";
  }

  std::string title() const {
    return exceeds() ? "The largest exceedances by group" : "The highest totals by group";
  }

  std::string words() const {
    std::string text =
        exceeds() ? "The largest of " + counted(results_.judgement.exceedances.count, "exceedance")
                  : "Nothing exceeds: these are the highest totals of the receptors";
    text += ", in ug/m**3: number, receptor, first hour, total. Each bar begins with " +
            case_.groups[1].name +
            ", so that its part can be held against the SIL (short line); "
            "the numbers in the bars are those of the groups in the case.";
    return text;
  }

  std::string description() const {
    std::string text = words();
    for (const Place& place : places_) {
      const ExceedanceRow row = exceedanceRow(results_.names, results_.averages, place);
      text += " " + row.place.receptor + ", " + row.place.hour + ": " + row.total + ", of which " +
              row.facility + " of " + case_.groups[1].name + ".";
    }
    return sentence(text);
  }

  const Results& results_;
  const Case& case_;
  std::vector<Place> places_;
  std::vector<std::size_t> coloured_;
  std::vector<std::vector<BarPart>> parts_;
  Scale scale_{};
  double bottom_ = 0;
};

}  // namespace

std::string barsOf(const Results& results) { return Bars(results).text(); }

}  // namespace korventally::engine
