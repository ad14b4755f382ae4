#include "wizard/WorkingDirectoryStep.h"

#include "platform/files.h"
#include "wizard/frmKORVENTALLY.h"
#include "wizard/modBrowseFolder.h"

namespace korventally {

WorkingDirectoryStep::WorkingDirectoryStep(frmKORVENTALLY& owner)
    : WizardStep(owner),
      frameWorkingDirectory(owner, {120, 120, 11295, 855},
                            "WORKING DIRECTORY:", fonts::kStepCaption, colors::kNavy),
      Frame2(owner, {11640, 120, 1455, 855}) {
  txtWorkDir.setTakesPath();
  txtWorkDir.setAccessibleName("Working directory");
  cmdBrowseWorkDir.onClick = [this] { cmdBrowseWorkDir_Click(); };
  txtWorkDir.onLostFocus = [this] { txtWorkDir_LostFocus(); };
  cmdNext1.onClick = [this] { cmdNext1_Click(); };
}

void WorkingDirectoryStep::cmdBrowseWorkDir_Click() {
  constexpr bool kNewDialogStyle = true;
  txtWorkDir.setText(BrowseForFolder(trimBlanks(txtWorkDir.text()),
                                     "Select a Working Directory:", kNewDialogStyle, wizard));
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
  switchTo(wizard.analysisType);
  wizard.analysisType.openArea();
  wizard.analysisType.cmdNextArrow1.setBackColor(colors::kGreen);
}

}  // namespace korventally
