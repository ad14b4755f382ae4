#include "wizard/source_groups_step.h"

#include <cstdint>
#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/color.h"
#include "platform/control.h"
#include "platform/files.h"
#include "wizard/group_caption.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {
namespace {

/// What an empty box means.
constexpr const char* kNoBackground = "0";

AnalysisCase& theCase() { return basModule::analysisCase; }

}  // namespace

SourceGroupsStep::SourceGroupsStep(StepHost& host) : WizardStep(host) {
  SetGroupCaption(frameSourceGroupInfo, 1, kFixedGroups);
  txtConcFile.setTakesPath();
  txtConcFile.setLabel(lblConcFile);
  txtGroupName.setLabel(lblGroupName);
  txtAmbientBckg.setLabel(lblAmbientBckg, &lblugm3);
  bindHandlers();
}

void SourceGroupsStep::bindHandlers() {
  cmdNextGroup.onClick = [this] { cmdNextGroup_Click(); };
  cmdPrevGroup.onClick = [this] { cmdPrevGroup_Click(); };
  cmdNext3.onClick = [this] { cmdNext3_Click(); };
  cmdPrevious3.onClick = [this] { cmdPrevious3_Click(); };
  cmdBrowseFile.onClick = [this] { cmdBrowseFile_Click(); };
  txtGroupName.onGotFocus = [this] { txtGroupName_GotFocus(); };
  txtConcFile.onLostFocus = [this] { txtConcFile_LostFocus(); };
  txtGroupName.onLostFocus = [this] { txtGroupName_LostFocus(); };
  txtAmbientBckg.onLostFocus = [this] { txtAmbientBckg_LostFocus(); };
}

std::vector<Control*> SourceGroupsStep::tabStops() {
  return {&txtConcFile,  &cmdBrowseFile, &txtGroupName, &txtAmbientBckg,
          &cmdPrevGroup, &cmdNextGroup,  &cmdNext3};
}

void SourceGroupsStep::opened(Way way) {
  if (way == Way::kForward) {
    OpenGroupPages();
  } else {
    reopenPagingButtons();
  }
}

void SourceGroupsStep::ParseGroupCaption(const std::string& caption) {
  const GroupCaption read = readGroupCaption(caption);
  CaptionGroupKind = read.kind;
  CaptionGroupSlot = read.slot;
  CaptionGroupCount = read.count;
}

void SourceGroupsStep::OpenGroupPages() {
  const std::int32_t groups = theCase().GroupCount;
  ParseGroupCaption(frameSourceGroupInfo.text());
  if (CaptionGroupKind == "OTHER" && CaptionGroupCount > groups) {
    // The page shown may not exist any more, so the pages start anew.
    CurrentGroup = 1;
    LoadGroupPage(CurrentGroup);
  } else {
    // The boxes keep what the user left on the page, stored or not.
    CurrentGroup = CaptionGroupSlot;
    SetGroupCaption(frameSourceGroupInfo, CurrentGroup, groups);
  }
  SetAmbientBackgroundVisible(CurrentGroup);
  if (CurrentGroup > 1) EnableControl(cmdPrevGroup);
  if (CurrentGroup != groups) {
    EnableControl(cmdNextGroup);
    cmdNextGroup.setBackColor(colors::kGreen);
  } else {
    EnableControl(cmdNext3);
  }
}

void SourceGroupsStep::reopenPagingButtons() {
  if (CurrentGroup > 1) EnableControl(cmdPrevGroup);
  EnableControl(cmdNext3);
}

void SourceGroupsStep::disablePagingButtons() {
  for (Button* button : {&cmdNextGroup, &cmdPrevGroup, &cmdNext3}) DisableControl(*button);
}

void SourceGroupsStep::LoadGroupPage(std::int32_t slot) {
  SetGroupCaption(frameSourceGroupInfo, slot, theCase().GroupCount);
  txtConcFile.setText(theCase().GroupConcFiles.at(slot));
  txtGroupName.setText(theCase().GroupNames.at(slot));
}

void SourceGroupsStep::StoreGroupPage(std::int32_t slot) {
  theCase().GroupConcFiles.at(slot) = trimBlanks(txtConcFile.text());
  if (!txtGroupName.isEmpty()) theCase().GroupNames.at(slot) = trimBlanks(txtGroupName.text());
}

void SourceGroupsStep::SetAmbientBackgroundVisible(std::int32_t slot) {
  for (Control* control : AmbientBackgroundControls) control->setVisible(slot == 1);
}

void SourceGroupsStep::ValidateConcFile() {
  ConcFileInvalid = false;
  if (!txtConcFile.isEmpty()) ClearFieldHighlight(txtConcFile);
  // Empty from the start, or because it held blanks only.
  if (txtConcFile.isEmpty()) return refuseConcFile("Please select a Concentration File.");
  if (!fileExists(txtConcFile.text())) {
    return refuseConcFile("The selected Concentration File can not be located.");
  }
}

void SourceGroupsStep::refuseConcFile(const std::string& message) {
  ConcFileInvalid = true;
  refuse(txtConcFile, message);
}

void SourceGroupsStep::cmdNextGroup_Click() {
  ValidateConcFile();
  if (ConcFileInvalid) return;
  StoreGroupPage(CurrentGroup);
  ++CurrentGroup;
  if (CurrentGroup == theCase().GroupCount) {
    cmdNextGroup.setBackColor(colors::kButtonFace);
    DisableControl(cmdNextGroup);
    EnableControl(cmdNext3);
  }
  SetAmbientBackgroundVisible(CurrentGroup);
  LoadGroupPage(CurrentGroup);
  EnableControl(cmdPrevGroup);
}

void SourceGroupsStep::cmdPrevGroup_Click() {
  EnableControl(cmdNextGroup);
  cmdNextGroup.setBackColor(colors::kGreen);
  DisableControl(cmdNext3);
  txtConcFile.setBackColor(colors::kWhite);
  StoreGroupPage(CurrentGroup);
  --CurrentGroup;
  SetAmbientBackgroundVisible(CurrentGroup);
  if (CurrentGroup == 1) DisableControl(cmdPrevGroup);
  LoadGroupPage(CurrentGroup);
}

void SourceGroupsStep::cmdNext3_Click() {
  ValidateConcFile();
  if (ConcFileInvalid) return;
  StoreGroupPage(CurrentGroup);
  wizard_.goForwardFrom(*this);
}

void SourceGroupsStep::cmdPrevious3_Click() {
  txtConcFile.setBackColor(colors::kWhite);
  wizard_.goBackFrom(*this);
}

void SourceGroupsStep::cmdBrowseFile_Click() {
  const std::string& chosen = ShowConcFileDialog();
  if (chosen.empty()) return;
  txtConcFile.setText(chosen);
  ClearFieldHighlight(txtConcFile);
}

const std::string& SourceGroupsStep::ShowConcFileDialog() {
  return wizard_.askForFile(
      "Concentration File (*.con) | *.con; |"
      "Concentration File (*.dat) | *.dat; |"
      "All Files (*.*) | *.*");
}

/// A default name makes room for the name that the user is about to type.
void SourceGroupsStep::txtGroupName_GotFocus() {
  const std::string& name = txtGroupName.text();
  if (CurrentGroup == 1 && name == "ALL_SOURCES") txtGroupName.setText("ALL");
  if (CurrentGroup == 2 && name == "FACILITY") txtGroupName.setText("");
  if (CurrentGroup > 2 && name == defaultOtherName(CurrentGroup)) txtGroupName.setText("");
}

void SourceGroupsStep::txtConcFile_LostFocus() { ClearFieldHighlight(txtConcFile); }
void SourceGroupsStep::txtGroupName_LostFocus() { ClearFieldHighlight(txtGroupName); }
void SourceGroupsStep::txtAmbientBckg_LostFocus() { ClearFieldHighlight(txtAmbientBckg); }

/// The tables of the groups are in the case already: fifty pages share one set of controls.
bool SourceGroupsStep::capture(AnalysisCase& into) {
  into.AmbientBackground = txtAmbientBckg.isEmpty() ? kNoBackground : txtAmbientBckg.text();
  return true;
}

/// The number of groups waits for "NEXT" of the step before; the pages are turned to the first.
void SourceGroupsStep::fill(const AnalysisCase& from) {
  theCase().GroupConcFiles = from.GroupConcFiles;
  theCase().GroupNames = from.GroupNames;
  SetGroupCaption(frameSourceGroupInfo, 1, from.GroupCount);
  SetAmbientBackgroundVisible(1);
  fillIn(txtConcFile, from.GroupConcFiles[1]);
  fillIn(txtGroupName, from.GroupNames[1]);
  fillIn(txtAmbientBckg, from.AmbientBackground == kNoBackground ? "" : from.AmbientBackground);
}

}  // namespace korventally
