#include "engine/page/series.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/page/html.h"
#include "engine/page/results.h"
#include "engine/page/scale.h"
#include "engine/page/series_path.h"
#include "engine/page/svg.h"
#include "engine/page/time_ticks.h"
#include "engine/report_rows.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr double kTop = 16, kHeight = 180, kRight = 16;
constexpr double kMarkRow = 10;   // below the axis, for calm and for missing hours
constexpr double kMarkWidth = 6;  // of exceedances closer than this the highest is marked
constexpr std::size_t kMostTimes = 5;
constexpr int kMostValues = 5;

class Series {
 public:
  explicit Series(const Results& results)
      : results_(results),
        blocks_(results.names.blocks),
        receptor_(worstReceptor(results.judgement.exceedances)) {
    for (std::size_t block = 0; block < results.averages.blocks(); ++block) {
      values_.push_back(results.averages.total(0, block, receptor_));
    }
    findLeftOut();
    const double standard = results.names.theCase.standard;
    const double high = 1.08 * std::max(standard, *std::ranges::max_element(values_));
    y_ = {0, high, kTop + kHeight, kTop};
    ticks_ = ticksBetween(0, high, kMostValues);
    std::size_t size = 0;
    for (const double value : ticks_.values) size = std::max(size, ticks_.text(value).size());
    left_ = textWidth(size) + 16;
  }

  std::string text() const {
    const double height = bottom() + 1.4 * kTextHeight;
    const std::string content = axes() + course() + marks() + exceedances() + leftOut() + limit();
    return element(
        "figure class=\"series\"",
        drawing(height, escaped("Totals in time at receptor " + id()), description(), content) +
            legend() + element("figcaption", sentence(words())));
  }

 private:
  const std::string& id() const { return results_.names.receptors[receptor_].id; }
  double right() const { return kDrawingWidth - kRight; }
  double bottom() const {
    const bool hasMarks = results_.hours.calm + results_.hours.missing > 0;
    return kTop + kHeight + (hasMarks ? 2 * kMarkRow : 0);
  }
  Scale perBlock() const { return {0, static_cast<double>(values_.size()), left_, right()}; }
  Scale perHour() const {
    return {0, static_cast<double>(blocks_.end() - blocks_.start), left_, right()};
  }
  double middleOf(std::size_t block) const { return perBlock()(static_cast<double>(block) + 0.5); }

  void findLeftOut() {
    isLeftOut_.assign(values_.size(), false);
    for (const Place& place : results_.judgement.leftOut) {
      if (place.receptor == receptor_) isLeftOut_[place.block] = true;
    }
  }

  std::string axes() const {
    std::string text;
    for (const double value : ticks_.values) {
      text += line(left_, y_(value), right(), y_(value), "grid") +
              label(left_ - 8, y_(value), Anchor::kEnd, ticks_.text(value), "beside");
    }
    const Scale x = perHour();
    for (const TimeTick& tick : timeTicks(blocks_.start, blocks_.end(), kMostTimes)) {
      const double at = x(static_cast<double>(tick.hour - blocks_.start));
      text += line(at, kTop, at, bottom() + 4, "grid") + tickBelow(at, bottom() + 8, tick.text);
    }
    return text;
  }

  std::string course() const {
    return "<path class=\"course\" d=\"" + coursePath(values_, perBlock(), y_) + "\"/>\n";
  }

  std::string limit() const {
    const double at = y_(results_.names.theCase.standard);
    return lineOver(left_, at, right(), at, "limit-line") +
           label(right() - 4, at - 5, Anchor::kEnd,
                 escaped("limit " + results_.names.theCase.standardText), "limit-name halo");
  }

  bool isExceedance(std::size_t block) const {
    return !isLeftOut_[block] && exceeds(values_[block], results_.names.theCase.standard);
  }

  std::string exceedances() const {
    std::map<int, std::size_t> highest;  // by place
    for (std::size_t block = 0; block < values_.size(); ++block) {
      if (!isExceedance(block)) continue;
      const auto place = static_cast<int>(middleOf(block) / kMarkWidth);
      const auto [found, isNew] = highest.try_emplace(place, block);
      if (!isNew && values_[block] > values_[found->second]) found->second = block;
    }
    std::string text;
    for (const auto& [place, block] : highest)
      text += triangle(middleOf(block), y_(values_[block]));
    return text;
  }

  static std::string triangle(double x, double y) {
    return "<path class=\"above\" d=\"M" + length(x) + "," + length(y - 5) + "l5,9h-10z\"/>";
  }

  std::string leftOut() const {
    std::string text;
    for (std::size_t block = 0; block < values_.size(); ++block) {
      if (!isLeftOut_[block]) continue;
      text += "<circle class=\"left-out\" cx=\"" + length(middleOf(block)) + "\" cy=\"" +
              length(y_(values_[block])) + "\" r=\"5\"/>";
    }
    return text;
  }

  std::string marks() const {
    return marksOf(HourKind::kCalm, "calm", kTop + kHeight + 2) +
           marksOf(HourKind::kMissing, "missing", kTop + kHeight + 2 + kMarkRow);
  }

  std::string marksOf(HourKind kind, const char* style, double top) const {
    std::vector<bool> marked;
    marked.reserve(results_.hours.kinds.size());
    for (const HourKind each : results_.hours.kinds) marked.push_back(each == kind);
    std::string text;
    for (const Piece& piece : markedPieces(marked, perHour())) {
      text += rectangle(piece.begin, top, piece.end - piece.begin, kMarkRow - 2, style);
    }
    return text;
  }

  std::string legend() const {
    const RunHours& hours = results_.hours;
    std::string items = element("li", "<b>&#9650;</b> exceedance");
    if (!results_.judgement.leftOut.empty()) {
      items += element("li", "<b>&#9675;</b> left out as rank 1");
    }
    if (hours.calm > 0) items += element("li", "<i class=\"calm\"></i> calm hours, upper row");
    if (hours.missing > 0) {
      items += element("li", "<i class=\"missing\"></i> missing hours, lower row");
    }
    return element("ul class=\"legend\"", items) + "\n";
  }

  std::string words() const {
    const AtReceptor& at = results_.judgement.exceedances.atReceptors[receptor_];
    std::string text =
        "Each " + kindOfAverage(blocks_) + " of " + results_.names.theCase.groups.front().name +
        " at receptor " + id() + ", from " + blocks_.nameOfHour(blocks_.start) + " to " +
        blocks_.nameOfHour(blocks_.end() - 1) + " (ug/m**3). The highest that was " + "judged is " +
        groupFigure(results_.names, 0, at.highest.value) + ", first hour " +
        blocks_.nameOf(at.highest.block) + "; " + counted(at.exceedances, "exceedance") + ".";
    const RunHours& hours = results_.hours;
    if (hours.calm + hours.missing == 0) return text + " No hour is marked calm or missing.";
    return text + " Below the axis: " + counted(hours.calm, "hour") + " calm, " +
           counted(hours.missing, "hour") + " missing.";
  }

  std::string description() const {
    return sentence(words() + " The limit is " + results_.names.theCase.standardText + ".");
  }

  const Results& results_;
  const Blocks& blocks_;
  std::size_t receptor_;
  std::vector<double> values_;
  std::vector<bool> isLeftOut_;
  Scale y_{};
  Ticks ticks_;
  double left_ = 0;
};

}  // namespace

std::string seriesOf(const Results& results) { return Series(results).text(); }

}  // namespace korventally::engine
