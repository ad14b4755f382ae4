// The results in the list file: files, averages, judgement, warnings, and the tables.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/coordinates.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"

namespace korventally::engine {

struct PlaceRow;

/// What the tables need to name a value. The first three must outlive the report.
struct Names {
  const Case& theCase;
  const Blocks& blocks;
  const std::vector<Receptor>& receptors;
  Axis x{receptors, &Receptor::x};
  Axis y{receptors, &Receptor::y};
};

/// Each file with its size and the time it was last written, in seconds since 1970.
void reportReceptorFile(const Case& theCase, const Receptors& receptors, std::int64_t written,
                        ListFile& list);
void reportGroupFile(const SourceGroup& group, const GroupSums& sums, std::int64_t written,
                     ListFile& list);
/// How the averages were formed, a line each; `more` are lines to add to them.
std::vector<std::string> linesOfAverages(const Case& theCase, const Blocks& blocks,
                                         const std::vector<std::string>& more);
void reportAverages(const std::vector<std::string>& lines, ListFile& list);

/// The counts, and the number that the case rests on: the facility's largest contribution.
std::vector<Fact> factsOfJudgement(const Names& names, const Averages& averages,
                                   const Judgement& judgement);
/// A section of facts; one without a value is left out.
void reportFacts(const char* title, const std::vector<Fact>& facts, ListFile& list);
void reportWarnings(const std::vector<std::string>& warnings, ListFile& list);
void reportMaxima(const Names& names, const Judgement& judgement, ListFile& list);

/// The largest exceedances; those with the largest contributions where the first table lacks some
/// of them; in report_exceedances.cpp. At most 132 characters a line, whatever the numbers of
/// groups.
void reportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list);
void reportReceptors(const Names& names, const Judgement& judgement, ListFile& list);
void reportLeftOut(const Names& names, const Judgement& judgement, ListFile& list);

/// "R07           600.0    -600.0  2009-01-14 00": receptor, X, Y and first hour of a value.
std::string placeColumns(const Names& names, const PlaceRow& row);
std::string placeHeadings(const Names& names);

}  // namespace korventally::engine
