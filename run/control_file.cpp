#include "run/control_file.h"

#include <cstddef>
#include <string>
#include <vector>

#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/files.h"
#include "platform/result.h"
#include "run/control_file_layout.h"

namespace korventally {

std::string controlFilePath(const AnalysisCase& theCase) { return theCase.WorkDir + kControlFile; }

std::vector<std::string> controlFileValues(const AnalysisCase& theCase) {
  std::vector<std::string> values;
  const auto add = [&](const std::string& value) { values.push_back(value); };
  add(theCase.WorkDir + theCase.ListFile);
  add(theCase.Species);
  add(theCase.StartYear + "," + theCase.StartMonth + "," + theCase.StartDay + "," +
      theCase.StartHour);
  add(theCase.RunLength);
  add(std::to_string(theCase.GroupCount));
  for (std::size_t slot = 1; slot <= static_cast<std::size_t>(theCase.GroupCount); ++slot) {
    add(theCase.GroupConcFiles.at(slot));
    add(theCase.GroupNames.at(slot));
  }
  add(control_file::kScaleAndOffset);
  add(theCase.AmbientBackground);
  add(theCase.AveragingHours);
  add(theCase.StandardLimit);
  add(theCase.ReceptorFormat);
  add(theCase.ReceptorFile);
  add(control_file::kFixedOne);
  add(theCase.SilLimit);
  add(control_file::kFixedTwo);
  add(theCase.Rank1Flag);
  add(control_file::kFixedZero);
  return values;
}

std::vector<std::string> controlFileLines(const AnalysisCase& theCase) {
  std::vector<std::string> lines = controlFileValues(theCase);
  for (std::string& line : lines) line.insert(0, control_file::kLinePrefix);
  return lines;
}

Status WriteControlFile() {
  const AnalysisCase& theCase = basModule::analysisCase;
  return writeTextFile(controlFilePath(theCase), controlFileLines(theCase));
}

}  // namespace korventally
