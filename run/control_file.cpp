#include "run/control_file.h"

#include <cstddef>
#include <string>
#include <vector>

#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/files.h"
#include "platform/result.h"

namespace korventally {
namespace {

const std::string kLinePrefix = std::string(29, ' ') + ":";

// Values that the engine expects and that no case varies.
constexpr const char* kScaleAndOffset = "1000000.0,0.0";  // g/m**3 to ug/m**3
constexpr const char* kFixedOne = "1";
constexpr const char* kFixedTwo = "2";
constexpr const char* kFixedZero = "0";

}  // namespace

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
  add(kScaleAndOffset);
  add(theCase.AmbientBackground);
  add(theCase.AveragingHours);
  add(theCase.StandardLimit);
  add(theCase.ReceptorFormat);
  add(theCase.ReceptorFile);
  add(kFixedOne);
  add(theCase.SilLimit);
  add(kFixedTwo);
  add(theCase.Rank1Flag);
  add(kFixedZero);
  return values;
}

std::vector<std::string> controlFileLines(const AnalysisCase& theCase) {
  std::vector<std::string> lines = controlFileValues(theCase);
  for (std::string& line : lines) line.insert(0, kLinePrefix);
  return lines;
}

Status WriteControlFile() {
  const AnalysisCase& theCase = basModule::analysisCase;
  return writeTextFile(controlFilePath(theCase), controlFileLines(theCase));
}

}  // namespace korventally
