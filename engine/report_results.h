// The results in the list file: files, averages, maxima, counts, exceedances, warnings.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"

namespace korventally::engine {

/// What the tables need to name a value. All parts must outlive the report.
struct Names {
  const Case& theCase;
  const Blocks& blocks;
  const std::vector<Receptor>& receptors;
};

void reportReceptorFile(const Case& theCase, const Receptors& receptors, ListFile& list);
void reportGroupFile(const SourceGroup& group, const GroupSums& sums, ListFile& list);
/// `more` are lines to add to the section.
void reportAverages(const Case& theCase, const Blocks& blocks, const std::vector<std::string>& more,
                    ListFile& list);
void reportMaxima(const Names& names, const Judgement& judgement, ListFile& list);
void reportCounts(const Names& names, const Judgement& judgement, ListFile& list);
void reportLeftOut(const Names& names, const Judgement& judgement, ListFile& list);
/// `ofInput` are lines about what the files hold; they come first.
void reportWarnings(const Names& names, const Averages& averages, const Judgement& judgement,
                    const std::vector<std::string>& ofInput, ListFile& list);

/// The table of the largest exceedances with the contribution of every group but the first; in
/// report_exceedances.cpp. At most 132 characters a line, whatever the number of groups.
void reportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list);

/// "R07           600.0    -600.0  2009-01-14 00": receptor, X, Y and first hour of a value.
std::string placeColumns(const Names& names, const Place& place);
std::string placeHeadings();

}  // namespace korventally::engine
