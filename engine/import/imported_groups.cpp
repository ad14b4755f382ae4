#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/fault.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/options.h"
#include "engine/import/series.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kMostGroups = 50;

ImportedGroup& groupOf(ImportedStudy& study, const std::string& name) {
  const auto place = std::ranges::find(study.groups, name, &ImportedGroup::name);
  if (place != study.groups.end()) return *place;
  study.groups.push_back({name, {}, {}, {}});
  return study.groups.back();
}

void addSeries(ImportedGroup& group, const SeriesFacts& series) {
  group.series.push_back(&series);
  group.sums.resize(series.sums.size());
  for (std::size_t i = 0; i < series.sums.size(); ++i) group.sums[i] += series.sums[i];
  if (series.largest.value > group.largest.value) group.largest = series.largest;
}

// "all.pst, line 424": where the hour stands that a message is about.
std::string placeOf(const SeriesFacts& series, std::uint64_t line) {
  return series.file + ", " + series.lineWord + " " + std::to_string(line);
}

std::string beginOf(const SeriesFacts& series) { return placeOf(series, series.firstLine); }

std::string endOf(const SeriesFacts& series) { return placeOf(series, series.lastLine); }

void requireName(const ImportedGroup& group) {
  if (!group.name.empty() && !hasControl(group.name)) return;
  throw Fault("Group " + inQuotes(group.name) + " (" + beginOf(*group.series.front()) +
              ") has no name that a case can have: it is empty or holds a control character.");
}

void requireUnbroken(const ImportedGroup& group) {
  for (std::size_t i = 1; i < group.series.size(); ++i) {
    const SeriesFacts &before = *group.series[i - 1], &next = *group.series[i];
    if (next.first == before.last + 1) continue;
    const std::string files = endOf(before) + " ends with " + modelHourText(before.last) +
                              ", and " + beginOf(next) + " begins with " +
                              modelHourText(next.first) + ".";
    throw Fault("Group " + group.name +
                (next.first <= before.last ? " has hours twice: " : " lacks hours: ") + files);
  }
}

void requireSameHours(const ImportedGroup& one, const ImportedGroup& other) {
  const auto require = [&](const char* what, Hour first, const std::string& firstPlace, Hour hour,
                           const std::string& place) {
    if (first == hour) return;
    throw Fault("Group " + other.name + " (" + place + ") " + what + " " + modelHourText(hour) +
                ", but group " + one.name + " (" + firstPlace + ") with " + modelHourText(first) +
                ". All groups of a case need the same hours.");
  };
  require("begins with", one.first(), beginOf(*one.series.front()), other.first(),
          beginOf(*other.series.front()));
  require("ends with", one.last(), endOf(*one.series.back()), other.last(),
          endOf(*other.series.back()));
}

std::string namesOf(const std::vector<ImportedGroup>& groups) {
  std::string names;
  for (const ImportedGroup& group : groups) names += (names.empty() ? "" : ", ") + group.name;
  return names;
}

// Puts the group where the case wants it.
void moveTo(std::vector<ImportedGroup>& groups, std::size_t place, const std::string& name,
            const std::string& option) {
  const auto found = std::ranges::find(groups, name, &ImportedGroup::name);
  if (found == groups.end()) {
    throw Fault("There is no group " + inQuotes(name) + " in the files; they hold " +
                namesOf(groups) + ". Say with " + option + " NAME which of them it is.");
  }
  std::rotate(groups.begin() + static_cast<std::ptrdiff_t>(place), found, found + 1);
}

void requireWanted(const ImportedStudy& study, const ImportOptions& options) {
  for (const std::string& name : options.only) {
    if (std::ranges::find(study.groups, name, &ImportedGroup::name) != study.groups.end()) continue;
    throw Fault("There is no group " + inQuotes(name) +
                " (--only) in the files; of those named "
                "there they hold " +
                (study.groups.empty() ? "none" : namesOf(study.groups)) + ".");
  }
}

}  // namespace

void putGroupsTogether(ImportedStudy& study, const ImportOptions& options) {
  for (const ModelData& file : study.files) {
    for (const SeriesFacts& series : file.series) {
      addSeries(groupOf(study, series.group), series);
    }
  }
  requireWanted(study, options);
  for (ImportedGroup& group : study.groups) {
    requireName(group);
    std::ranges::stable_sort(group.series, {}, &SeriesFacts::first);
    requireUnbroken(group);
  }
  if (study.groups.size() > kMostGroups) {
    throw Fault("The files hold " + std::to_string(study.groups.size()) +
                " groups; a case has at most 50. Choose with --only NAME,...");
  }
  if (study.isCase()) {
    moveTo(study.groups, 0, options.all, "--all");
    moveTo(study.groups, 1, options.facility, "--facility");
  }
  for (const ImportedGroup& group : study.groups) requireSameHours(study.groups.front(), group);
  study.first = study.groups.front().first();
  study.last = study.groups.front().last();
}

}  // namespace korventally::engine
