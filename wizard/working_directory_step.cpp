#include "wizard/working_directory_step.h"

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/files.h"
#include "wizard/modBrowseFolder.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {

WorkingDirectoryStep::WorkingDirectoryStep(StepHost& host) : WizardStep(host) {
  txtWorkDir.setTakesFolder();
  txtWorkDir.setLabel(frameWorkingDirectory);
  cmdBrowseWorkDir.onClick = [this] { cmdBrowseWorkDir_Click(); };
  txtWorkDir.onLostFocus = [this] { txtWorkDir_LostFocus(); };
  cmdNext1.onClick = [this] { cmdNext1_Click(); };
}

void WorkingDirectoryStep::cmdBrowseWorkDir_Click() {
  constexpr bool kNewDialogStyle = true;
  txtWorkDir.setText(BrowseForFolder(trimBlanks(txtWorkDir.text()),
                                     "Select a Working Directory:", kNewDialogStyle, wizard_));
  ClearFieldHighlight(txtWorkDir);
}

void WorkingDirectoryStep::txtWorkDir_LostFocus() {
  const std::string& path = txtWorkDir.text();
  if (!path.empty() && !path.ends_with('\\')) txtWorkDir.setText(path + '\\');
  ClearFieldHighlight(txtWorkDir);
}

void WorkingDirectoryStep::cmdNext1_Click() {
  txtWorkDir_LostFocus();
  if (txtWorkDir.isEmpty()) return refuse(txtWorkDir, "Please select a Working Directory.");
  if (!folderListsEntries(txtWorkDir.text())) {
    return refuse(txtWorkDir, "Selected Working Directory does not exist.");
  }
  ClearFieldHighlight(txtWorkDir);
  wizard_.goForwardFrom(*this);
}

bool WorkingDirectoryStep::capture(AnalysisCase& into) {
  into.WorkDir = path();
  return true;
}

void WorkingDirectoryStep::fill(const AnalysisCase& from) { fillIn(txtWorkDir, from.WorkDir); }

}  // namespace korventally
