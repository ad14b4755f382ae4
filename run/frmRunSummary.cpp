#include "run/frmRunSummary.h"

#include <utility>

#include "case/ModUtilities.h"
#include "case/failures.h"
#include "platform/dialogs.h"

namespace korventally {
namespace {

constexpr const char* kUnit = "ug/m**3";
constexpr std::int16_t kEnter = 13;

AnalysisCase& theCase() { return basModule::analysisCase; }

}  // namespace

frmRunSummary::frmRunSummary() : Window(" KORVENTALLY Run Information:", {6615, 5160}) {
  setTabOrder({&cmdRUN, &txtSpecies, &txtAvePeriod, &txtNAAQSPSDLimit, &txtSILLimit, &cmdBack,
               &chkAutoOpen});
  const auto limitKey = [this](std::int16_t& keyCode) {
    FilterDecimalKey(keyCode);
    if (keyCode == kEnter) {
      moveFocus();
      keyCode = 0;
    }
  };
  txtNAAQSPSDLimit.onKeyPress = limitKey;
  txtSILLimit.onKeyPress = limitKey;
  cmdRUN.onClick = [this] { cmdRUN_Click(); };
  cmdBack.onClick = [this] { cmdBack_Click(); };
  txtSpecies.setAccessibleName("Species");
  txtAvePeriod.setAccessibleName("Averaging Period, hours");
  txtSILLimit.setAccessibleName("SIL Limit, ug/m**3");
}

void frmRunSummary::Form_Load() {
  const bool naaqs = theCase().Standard == "NAAQS";
  lblAnalysisType.setText(theCase().AreaClass + " " + theCase().Standard + "/SIL");
  txtSpecies.setText(theCase().Species);
  txtAvePeriod.setText(theCase().AveragingHours);
  txtNAAQSPSDLimit.setText(theCase().StandardLimit);
  lblNAAQSPSDLimitValue.setText(kUnit);
  txtSILLimit.setText(theCase().SilLimit);
  lblSILLimitValue.setText(kUnit);
  lblNAAQSPSDLimit.setText(theCase().Standard + (naaqs ? " Standard:" : " Increment:"));
  txtNAAQSPSDLimit.setAccessibleName(theCase().Standard + (naaqs ? " Standard" : " Increment") +
                                     ", " + kUnit);
  lblAmbientBckg.setVisible(naaqs);
  lblAmbientConc.setVisible(naaqs);
  lblAmbientConc.setText(theCase().AmbientBackground + " " + kUnit);
  lblRank1_YesNo.setText(theCase().Rank1Flag == "T" ? "Excluded" : "Included");
  lblStatus.setText("");
  lblRunning.setText("");
  chkAutoOpen.setChecked(true);
}

void frmRunSummary::cmdBack_Click() { requestClose(); }

void frmRunSummary::cmdRUN_Click() {
  // A second press can arrive while the first still prepares its files.
  if (run_ != nullptr) return;
  takeValuesBack();
  EngineRun run(*this, lblRunning);
  run_ = &run;
  performRun(run);
  run.removeOwnFiles();
  run_ = nullptr;
  setRunning(false);
  showOutcome();
  if (RunStatus && chkAutoOpen.checked()) openListFile();
}

void frmRunSummary::takeValuesBack() {
  theCase().Species = trimBlanks(txtSpecies.text());
  theCase().AveragingHours = trimBlanks(txtAvePeriod.text());
  theCase().StandardLimit = trimBlanks(txtNAAQSPSDLimit.text());
  theCase().SilLimit = trimBlanks(txtSILLimit.text());
}

void frmRunSummary::performRun(EngineRun& run) {
  RunStatus.reset();
  if (!run.prepare()) return;
  setRunning(true);
  lblStatus.setText("");
  if (run.start()) RunStatus = run.waitForVerdict();
}

void frmRunSummary::setRunning(bool running) {
  cmdRUN.setEnabled(!running);
  cmdBack.setEnabled(!running);
  if (running) {
    // The check box is what still counts for this run, so it gets the focus that "RUN" loses.
    if (focused() == &cmdRUN) setFocus(chkAutoOpen);
  } else if (focused() == &chkAutoOpen) {
    setFocus(cmdRUN);
  }
}

void frmRunSummary::showOutcome() {
  lblRunning.setText("");
  if (!RunStatus) return;
  lblStatus.setText(*RunStatus == Verdict::kCompleted ? "RUN COMPLETED"
                                                      : "RUN FAILED - SEE LIST FILE");
  announce(lblStatus);
}

void frmRunSummary::openListFile() {
  const Status opened = OpenFileInNotepad(theCase().WorkDir, theCase().ListFile);
  if (opened) return;
  showFailure(this, "The list file could not be opened in notepad:", opened.error(),
              "The run is not affected. Please open the list file yourself.");
}

bool frmRunSummary::queryUnload() {
  if (run_ == nullptr) return true;
  if (run_->started() &&
      messageBox(this, "The engine is still running. Stop it and close this window?", kWarningTitle,
                 Buttons::kYesNo) != Answer::kYes) {
    return false;
  }
  // The run may have ended while the question was open.
  if (run_ != nullptr) run_->abandon();
  return true;
}

std::string frmRunSummary::sessionEndObjection() const {
  return run_ == nullptr ? "" : "The engine is still running.";
}

void frmRunSummary::sessionEnds() {
  if (run_ != nullptr) run_->abandon();
}

}  // namespace korventally
