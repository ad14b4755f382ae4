#include "wizard/output_file_step.h"

#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/button.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "wizard/list_file_name.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {
namespace {

/// Every file that the case reads.
std::vector<std::string> inputFiles(const AnalysisCase& theCase) {
  const auto firstGroup = theCase.GroupConcFiles.begin() + 1;
  std::vector<std::string> files(firstGroup, firstGroup + theCase.GroupCount);
  files.push_back(theCase.ReceptorFile);
  return files;
}

}  // namespace

OutputFileStep::OutputFileStep(StepHost& host, Button& cmdRUN)
    : WizardStep(host),
      OutputFileControls{&frameOutputFile, &lblLSTFilename, &cmdDefault_LST, &cmdPrevious5,
                         &cmdRUN} {
  txtLSTFilename.setLabel(lblLSTFilename);
  cmdDefault_LST.onClick = [this] { cmdDefault_LST_Click(); };
  cmdPrevious5.onClick = [this] { cmdPrevious5_Click(); };
}

void OutputFileStep::cmdDefault_LST_Click() { txtLSTFilename.setText(kDefaultListFile); }

void OutputFileStep::cmdPrevious5_Click() { wizard_.goBackFrom(*this); }

bool OutputFileStep::capture(AnalysisCase& into) {
  if (!checkListFile(into)) return false;
  // The case keeps the name's blanks; only the box loses them.
  into.ListFile = txtLSTFilename.text();
  ClearFieldHighlight(txtLSTFilename);
  return true;
}

void OutputFileStep::fill(const AnalysisCase& from) { fillIn(txtLSTFilename, from.ListFile); }

bool OutputFileStep::checkListFile(const AnalysisCase& captured) {
  const std::string& name = txtLSTFilename.text();
  if (name.empty()) {
    refuse(txtLSTFilename, "Please enter a filename for the output KORVENTALLY results list file.");
    return false;
  }
  const std::string objection = objectionToListFile(captured.WorkDir, name, inputFiles(captured));
  if (!objection.empty()) {
    refuse(txtLSTFilename, objection);
    return false;
  }
  return !fileExists(captured.WorkDir + name) || askToOverwrite();
}

bool OutputFileStep::askToOverwrite() {
  HighlightField(txtLSTFilename);
  const Answer overwrite = messageBox(
      &wizard_, "The selected output filename already exists. Do you wish to overwrite it?",
      kWarningTitle, Buttons::kYesNo);
  if (overwrite == Answer::kNo) offerToCorrect(txtLSTFilename);
  return overwrite == Answer::kYes;
}

}  // namespace korventally
