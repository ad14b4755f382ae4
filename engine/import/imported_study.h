// The groups, receptors and hours of a case, put together from a dispersion model's files.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/import/calm_hours.h"
#include "engine/import/model_data.h"
#include "engine/import/options.h"
#include "engine/import/series.h"

namespace korventally::engine {

/// A source group, which may have come in several files, each with hours of its own.
struct ImportedGroup {
  std::string name;
  std::vector<const SeriesFacts*> series;  ///< in the order of their hours
  std::vector<double> sums;                ///< of each receptor, in the model's unit
  LargestValue largest;

  Hour first() const { return series.front()->first; }
  Hour last() const { return series.back()->last; }
};

struct ImportedStudy {
  std::vector<ModelData> files;
  std::vector<ModelPlace> places;
  std::vector<std::string> receptors;  ///< their names
  std::vector<ImportedGroup> groups;   ///< all sources, the facility, then the others as they came
  Hour first = 0;                      ///< of every group
  Hour last = 0;
  std::map<Hour, HourKind> marks;  ///< hours to be marked calm or missing
  std::vector<Hour> zeroHours;     ///< zero in every group at every receptor
  std::string markSource;          ///< a sentence on what decided about calm hours

  std::int64_t hours() const { return last - first + 1; }

  /// A case needs all sources and the facility at least; a single group is imported without one.
  bool isCase() const { return groups.size() > 1; }
};

/// Puts the files' series together as groups and orders them. Throws Fault, naming files and hours,
/// where groups differ in their hours, an hour is missing or comes twice, or a group that a case
/// needs is missing. `study.files` must be there.
void putGroupsTogether(ImportedStudy& study, const ImportOptions& options);

/// Decides which hours are marked. Throws Fault when the calm hours are another run's, or when
/// nothing tells whether hours of zeros are calm.
void judgeZeroHours(ImportedStudy& study, const ImportOptions& options, const CalmHours* calms);

}  // namespace korventally::engine
