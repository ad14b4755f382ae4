#include "run/batch_file.h"

#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/process.h"
#include "run/control_file.h"

namespace korventally {

std::string enginePath() { return installationDirectory() + "\\korventally.exe"; }

std::string batchFilePath(const AnalysisCase& theCase) { return theCase.WorkDir + kBatchFile; }

std::vector<std::string> batchFileLines(const AnalysisCase& theCase, const std::string& engine) {
  std::vector<std::string> lines{batchQuoted(engine) + " " + batchQuoted(controlFilePath(theCase))};
  if (theCase.DebugMode) lines.emplace_back("pause");
  return lines;
}

}  // namespace korventally
