#include "wizard/frmKORVENTALLY.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "limits/limits.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/result.h"
#include "run/control_file.h"
#include "run/frmRunSummary.h"
#include "wizard/opening_messages.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

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

frmKORVENTALLY::frmKORVENTALLY(std::vector<std::string> controlFiles)
    : StepHost(" KorvenTally [source contributions to a regulatory limit]", {13215, 10275}),
      controlFiles_(std::move(controlFiles)) {
  setTakesFiles(true);
  setMenus({mnuFile, mnuHelp});
  setTabOrder(wholeTabOrder());
  cmdBackToTop.onClick = [this] { cmdBackToTop_Click(); };
  cmdRUN.onClick = [this] { cmdRUN_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
  for (WizardStep* step : steps_) {
    if (step == steps_.front()) continue;
    DisableStep(step->controls(), step->fields());
    step->closed(WizardStep::Way::kBack);
  }
}

/// The forward path first, with "RUN" and "Cancel" before the last step; then the ways back from
/// the last step to the first; "Back to Top" last.
std::vector<Control*> frmKORVENTALLY::wholeTabOrder() {
  std::vector<Control*> order;
  const auto append = [&](const std::vector<Control*>& stops) {
    order.insert(order.end(), stops.begin(), stops.end());
  };
  for (WizardStep* step : steps_) {
    if (step == steps_.back()) append({&cmdRUN, &cmdCancel});
    append(step->tabStops());
  }
  std::for_each(steps_.rbegin(), steps_.rend(),
                [&](WizardStep* step) { append(step->tabStopsBack()); });
  append({&cmdBackToTop});
  return order;
}

void frmKORVENTALLY::Form_Load() {
  const std::string defaultDirectory = initialiseCase();
  if (!defaultDirectory.empty()) workingDirectory.setPath(defaultDirectory);
}

void frmKORVENTALLY::shown() {
  if (!controlFiles_.empty()) openControlFiles(controlFiles_);
}

void frmKORVENTALLY::filesDropped(const std::vector<std::string>& paths) {
  openControlFiles(paths);
}

void frmKORVENTALLY::openControlFiles(const std::vector<std::string>& paths) {
  const Result<AnalysisCase> opened =
      paths.size() == 1 ? readControlFile(paths.front()) : tooManyFiles(paths);
  if (!opened) return sayWhyNotOpened(*this, opened.error());
  for (WizardStep* step : steps_) step->fill(opened.value());
  basModule::analysisCase.openedFrom = opened.value().openedFrom;
  sayWhatCouldNotBeFilled(*this, opened.value());
}

const std::string& frmKORVENTALLY::askForFile(const std::string& filter) {
  cdlBrowse.Filter = filter;
  cdlBrowse.FilterIndex = 1;
  cdlBrowse.InitDir = workingDirectory.path();
  cdlBrowse.FileName.clear();
  cdlBrowse.ShowOpen();
  return cdlBrowse.FileName;
}

void frmKORVENTALLY::mnuExit_Click() { unload(); }

void frmKORVENTALLY::mnuKORVENTALLYHelp_Click() { help_.show(this); }

void frmKORVENTALLY::mnuAboutKORVENTALLY_Click() { about_.show(this); }

void frmKORVENTALLY::cmdCancel_Click() { unload(); }

void frmKORVENTALLY::goForwardFrom(WizardStep& step) {
  const auto at = std::find(steps_.begin(), steps_.end(), &step);
  switchSteps(step, **std::next(at), WizardStep::Way::kForward);
}

void frmKORVENTALLY::goBackFrom(WizardStep& step) {
  const auto at = std::find(steps_.begin(), steps_.end(), &step);
  switchSteps(step, **std::prev(at), WizardStep::Way::kBack);
}

void frmKORVENTALLY::cmdBackToTop_Click() {
  WizardStep* step = openStep();
  if (step == nullptr || step == steps_.front()) return;
  switchSteps(*step, *steps_.front(), WizardStep::Way::kToTop);
}

void frmKORVENTALLY::switchSteps(WizardStep& from, WizardStep& to, WizardStep::Way way) {
  SwitchStep(from.controls(), from.fields(), to.controls(), to.fields());
  setTakesFiles(&to == steps_.front());
  from.closed(way);
  to.opened(way);
}

void frmKORVENTALLY::cmdRUN_Click() {
  // The window may have gone while it asked.
  if (!CaptureCase() || !isOpen()) return;
  DeriveLimits(basModule::analysisCase);
  frmRunSummary().show(this);
}

/// Every step adds its part to a copy, so that a step which refuses leaves the case as it was,
/// but for the working directory.
bool frmKORVENTALLY::CaptureCase() {
  AnalysisCase& theCase = basModule::analysisCase;
  workingDirectory.capture(theCase);
  AnalysisCase captured = theCase;
  for (WizardStep* step : steps_) {
    if (!step->capture(captured)) return false;
  }
  theCase = captured;
  return true;
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
