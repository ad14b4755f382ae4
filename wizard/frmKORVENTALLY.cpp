#include "wizard/frmKORVENTALLY.h"

#include <algorithm>

#include "case/basModule.h"

namespace korventally {
namespace {

bool contains(const ControlGroup& group, const Control* control) {
  return std::find(group.begin(), group.end(), control) != group.end();
}

bool isInside(const Container& container, const Control& control) {
  for (const Container* at = control.container(); at != nullptr; at = at->container()) {
    if (at == &container) return true;
  }
  return false;
}

}  // namespace

frmKORVENTALLY::frmKORVENTALLY()
    : Window(" KorvenTally [source contributions to a regulatory limit]", {13215, 10275}) {
  setMenus({mnuFile, mnuHelp});
  setTabOrder(forwardTabOrder());
  cmdBackToTop.onClick = [this] { cmdBackToTop_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

/// The forward path first, then the ways back, "Back to Top" last.
std::vector<Control*> frmKORVENTALLY::forwardTabOrder() {
  WorkingDirectoryStep& one = workingDirectory;
  AnalysisTypeStep& two = analysisType;
  SourceGroupsStep& three = sourceGroups;
  ProcessingInfoStep& four = processingInfo;
  OutputFileStep& five = outputFile;
  // clang-format off
  return {
      &one.txtWorkDir, &one.cmdBrowseWorkDir, &one.cmdNext1,

      &two.optClassI, &two.optClassII, &two.cmdNextArrow1,
      &two.optNAAQS, &two.optPSD, &two.cmdNextArrow2,
      &two.optSO2, &two.optPM10, &two.optNOX, &two.cmdNextArrow3,
      &two.opt3hr, &two.opt24hr, &two.optAnnual,
      &two.txtNumOfOthers, &two.cmdNext2,

      &three.txtConcFile, &three.cmdBrowseFile, &three.txtGroupName, &three.txtAmbientBckg,
      &three.cmdPrevGroup, &three.cmdNextGroup, &three.cmdNext3,

      &four.txtReceptorDATFile, &four.cmdBrowseReceptorDAT,
      &four.optReceptor_TOLVREN, &four.optReceptor_Generic,
      &four.txtYear, &four.txtMonth, &four.txtDay, &four.txtHour, &four.txtRunLength,
      &four.optRank1_Include, &four.optRank1_Exclude, &four.cmdNext4,

      &cmdRUN, &cmdCancel, &five.txtLSTFilename, &five.cmdDefault_LST,

      &five.cmdPrevious5, &four.cmdPrevious4, &three.cmdPrevious3, &two.cmdPrevious2,
      &two.cmdBackArrow3, &two.cmdBackArrow2, &two.cmdBackArrow1,
      &cmdBackToTop,
  };
  // clang-format on
}

void frmKORVENTALLY::Form_Load() {
  const std::string defaultDirectory = initialiseCase();
  if (!defaultDirectory.empty()) workingDirectory.txtWorkDir.setText(defaultDirectory);
}

const std::string& frmKORVENTALLY::askForFile(const std::string& filter) {
  cdlBrowse.Filter = filter;
  cdlBrowse.FilterIndex = 1;
  cdlBrowse.InitDir = workingDirectory.txtWorkDir.text();
  cdlBrowse.FileName.clear();
  cdlBrowse.ShowOpen();
  return cdlBrowse.FileName;
}

void frmKORVENTALLY::mnuExit_Click() { unload(); }

void frmKORVENTALLY::mnuKORVENTALLYHelp_Click() { help_.show(this); }

void frmKORVENTALLY::mnuAboutKORVENTALLY_Click() { about_.show(this); }

void frmKORVENTALLY::cmdCancel_Click() { unload(); }

void frmKORVENTALLY::cmdBackToTop_Click() {
  WizardStep* step = openStep();
  if (step == nullptr || step == &workingDirectory) return;
  step->switchTo(workingDirectory);
  if (step == &sourceGroups) sourceGroups.disablePagingButtons();
}

WizardStep* frmKORVENTALLY::openStep() const {
  const auto open = std::find_if(steps_.begin(), steps_.end(),
                                 [](const WizardStep* step) { return step->isOpen(); });
  return open == steps_.end() ? nullptr : *open;
}

Control* frmKORVENTALLY::preferredFocus() const {
  const WizardStep* step = openStep();
  if (step == nullptr) return nullptr;
  const auto belongsToStep = [step](const Control* control) {
    return isTabStop(*control) &&
           (contains(step->controls(), control) || isInside(step->frame(), *control));
  };
  const auto first = std::find_if(tabOrder().begin(), tabOrder().end(), belongsToStep);
  return first == tabOrder().end() ? nullptr : *first;
}

}  // namespace korventally
