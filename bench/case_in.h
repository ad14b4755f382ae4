#pragma once

#include <cstdint>
#include <string>

#include "case/basModule.h"
#include "limits/limits.h"

namespace korventally::bench {

/// A complete case with so many source groups, whose files are all the same one in the folder.
inline AnalysisCase caseIn(const std::string& folder, std::int32_t groups) {
  AnalysisCase theCase;
  nameGroups(theCase);
  theCase.WorkDir = folder;
  theCase.AreaClass = kClassII;
  theCase.Standard = kPsd;
  theCase.Species = "SO2";
  theCase.AveragingHours = "24";
  theCase.AmbientBackground = "0";
  theCase.GroupCount = groups;
  theCase.GroupConcFiles.fill(folder + "any.dat");
  theCase.ReceptorFormat = kGenericFormat;
  theCase.ReceptorFile = folder + "any.dat";
  theCase.StartYear = "2009";
  theCase.StartMonth = theCase.StartDay = "01";
  theCase.StartHour = "00";
  theCase.RunLength = "8760";
  theCase.Rank1Flag = kRank1Included;
  theCase.ListFile = "korventally.lst";
  DeriveLimits(theCase);
  return theCase;
}

}  // namespace korventally::bench
