#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/fault.h"
#include "engine/import/calm_hours.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/options.h"
#include "engine/import/series.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

// What may pass for calm without being named: calm hours are few, and no day is all of them.
constexpr std::int64_t kMostOfTen = 1;
constexpr std::int64_t kMostInARow = 24;

std::vector<Hour> zeroHoursOf(const ImportedGroup& group) {
  std::vector<Hour> hours;
  for (const SeriesFacts* series : group.series) {
    for (const ZeroHour& zero : series->zeroHours) hours.push_back(zero.hour);
  }
  return hours;
}

std::vector<Hour> zeroEverywhere(const ImportedStudy& study) {
  std::vector<Hour> common = zeroHoursOf(study.groups.front());
  for (std::size_t i = 1; i < study.groups.size(); ++i) {
    const std::vector<Hour> here = zeroHoursOf(study.groups[i]);
    std::vector<Hour> both;
    std::ranges::set_intersection(common, here, std::back_inserter(both));
    common = std::move(both);
  }
  for (const ModelData& file : study.files) {
    std::erase_if(common, [&](Hour hour) { return file.hoursWithValues.contains(hour); });
  }
  return common;
}

std::int64_t longestRow(const std::vector<Hour>& hours) {
  std::int64_t longest = 0, row = 0;
  for (std::size_t i = 0; i < hours.size(); ++i) {
    row = i > 0 && hours[i] == hours[i - 1] + 1 ? row + 1 : 1;
    longest = std::max(longest, row);
  }
  return longest;
}

// The group and hour that a calm hour must not have: a value above zero.
const ImportedGroup* groupWithValues(const ImportedStudy& study, Hour hour) {
  for (const ImportedGroup& group : study.groups) {
    if (!std::ranges::binary_search(zeroHoursOf(group), hour)) return &group;
  }
  return nullptr;  // it is one that was left out
}

void takeNamedHours(ImportedStudy& study, const CalmHours& calms) {
  if (calms.first && (*calms.first > study.first || *calms.last < study.last)) {
    throw Fault("The surface file " + calms.file + " belongs to another run: it has the hours " +
                modelHourText(*calms.first) + " to " + modelHourText(*calms.last) +
                ", the concentrations have " + modelHourText(study.first) + " to " +
                modelHourText(study.last) + ".");
  }
  for (const auto& [hour, named] : calms.hours) {
    if (hour < study.first || hour > study.last) continue;
    if (!std::ranges::binary_search(study.zeroHours, hour)) {
      const ImportedGroup* group = groupWithValues(study, hour);
      throw Fault("The file " + calms.file + ", line " + std::to_string(named.line) + " calls " +
                  modelHourText(hour) + (named.kind == HourKind::kCalm ? " calm" : " missing") +
                  ", but " +
                  (group == nullptr ? "a group that is left out" : "group " + group->name) +
                  " has a value above zero then: the file belongs to another run.");
    }
    study.marks[hour] = named.kind;
  }
  study.markSource = "Calm and missing hours are those that " + calms.file + " names.";
}

void judgeUnnamed(ImportedStudy& study) {
  const auto count = static_cast<std::int64_t>(study.zeroHours.size());
  const std::int64_t row = longestRow(study.zeroHours);
  if (10 * count > kMostOfTen * study.hours() || row > kMostInARow) {
    throw Fault(grouped(static_cast<std::uint64_t>(count)) + " of " + hoursText(study.hours()) +
                " are zero everywhere, up to " + std::to_string(row) +
                " in a row. Calm hours, or no emission? The values do not tell, and averages "
                "depend on it. Name the model's message or surface file with --calms FILE, or say "
                "--zero-hours calm or --zero-hours valid.");
  }
  for (const Hour hour : study.zeroHours) study.marks[hour] = HourKind::kCalm;
  study.markSource = count == 0
                         ? "No hour is zero everywhere, so none is taken for calm."
                         : "Hours of zeros everywhere are taken for calm, because they are few; "
                           "--calms FILE would tell.";
}

}  // namespace

void judgeZeroHours(ImportedStudy& study, const ImportOptions& options, const CalmHours* calms) {
  study.zeroHours = zeroEverywhere(study);
  if (calms != nullptr) return takeNamedHours(study, *calms);
  if (options.zeroHours == ZeroHours::kJudge) return judgeUnnamed(study);
  if (options.zeroHours == ZeroHours::kValid) {
    study.markSource = "Hours of zeros everywhere count as valid (--zero-hours valid).";
    return;
  }
  for (const Hour hour : study.zeroHours) study.marks[hour] = HourKind::kCalm;
  study.markSource = "Hours of zeros everywhere are taken for calm (--zero-hours calm).";
}

}  // namespace korventally::engine
