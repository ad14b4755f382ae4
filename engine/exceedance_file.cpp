#include "engine/exceedance_file.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

#include "engine/averages.h"
#include "engine/control_file.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"
#include "engine/side_file.h"

namespace korventally::engine {
namespace {

constexpr Mark kMark{"Receptor ID", "Unfinished ", ",X,Y,First hour,Valid hours,Total (ug/m**3)"};
static_assert(kMark.whole.size() == kMark.unfinished.size());

std::string csvField(std::string_view text) {
  const bool plain =
      text.find_first_of(",\"\r\n") == text.npos && !text.starts_with(' ') && !text.ends_with(' ');
  if (plain) return std::string(text);
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? std::string("\"\"") : std::string(1, c);
  return field + '"';
}

// Twelve digits: more than the rounding that decides, fewer than that of the arithmetic.
std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.12g", value);
  return text;
}

}  // namespace

ExceedanceFile::ExceedanceFile(const std::string& pathText, const std::string& role)
    : file_(pathText, role, kMark) {}

void ExceedanceFile::begin(const Case& theCase) {
  std::string names;
  for (const SourceGroup& group : theCase.groups) names += "," + csvField(group.name);
  file_.begin(names + "\r\n");
}

void ExceedanceFile::add(const Names& names, const Averages& averages, const Place& place) {
  if (!problem().empty()) return;
  const Receptor& receptor = names.receptors[place.receptor];
  std::string row = csvField(receptor.id) + "," + names.x.text(receptor) + "," +
                    names.y.text(receptor) + "," + names.blocks.nameOf(place.block) + "," +
                    std::to_string(averages.validHours(place.block)) + "," + number(place.value);
  for (std::size_t group = 0; group < averages.groups(); ++group) {
    row += "," + number(averages.own(group, place.block, place.receptor));
  }
  file_.add(row + "\r\n");
  ++rows_;
}

}  // namespace korventally::engine
