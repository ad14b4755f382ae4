// The results in the list file: files, averages, maxima, counts, exceedances, warnings.
#pragma once

#include <string>
#include <vector>

#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"

namespace korventally::engine {

// What the tables need to name a value. All parts must outlive the report.
struct Names {
  const Case& the_case;
  const Blocks& blocks;
  const std::vector<Receptor>& receptors;
};

void ReportReceptorFile(const Case& the_case, const Receptors& receptors, ListFile& list);
void ReportGroupFile(const SourceGroup& group, const GroupSums& sums, std::size_t receptors,
                     ListFile& list);
void ReportAverages(const Case& the_case, const Blocks& blocks, ListFile& list);
void ReportMaxima(const Names& names, const Judgement& judgement, ListFile& list);
void ReportCounts(const Names& names, const Judgement& judgement, ListFile& list);
void ReportLeftOut(const Names& names, const Judgement& judgement, ListFile& list);
void ReportWarnings(const Names& names, const Averages& averages, const Judgement& judgement,
                    ListFile& list);

// The table of the largest exceedances with the contribution of every group but the first; in
// report_exceedances.cpp. At most 132 characters a line, whatever the number of groups.
void ReportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list);

// "R07           600.0    -600.0  2009-01-14 00": receptor, X, Y and first hour of a value.
std::string PlaceColumns(const Names& names, const Place& place);
std::string PlaceHeadings();

}  // namespace korventally::engine
