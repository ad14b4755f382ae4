#include "run/frmRunSummary.h"

#include <cstdint>
#include <utility>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "case/failures.h"
#include "platform/dialogs.h"
#include "platform/result.h"
#include "run/engine_run.h"
#include "run/verdict.h"

namespace korventally {
namespace {

constexpr const char* kUnit = "ug/m**3";

AnalysisCase& theCase() { return basModule::analysisCase; }

}  // namespace

frmRunSummary::frmRunSummary() : Window(" KORVENTALLY Run Information:", {6615, 5160}) {
  setTabOrder({&cmdRUN, &txtSpecies, &txtAvePeriod, &txtNAAQSPSDLimit, &txtSILLimit, &cmdBack,
               &chkAutoOpen});
  const auto limitKey = [this](std::int16_t& keyCode) {
    FilterDecimalKey(keyCode);
    moveOnAtEnter(*this, keyCode);
  };
  txtNAAQSPSDLimit.onKeyPress = limitKey;
  txtSILLimit.onKeyPress = limitKey;
  cmdRUN.onClick = [this] { cmdRUN_Click(); };
  cmdBack.onClick = [this] { cmdBack_Click(); };
  chkAutoOpen.onClick = [this] { focusLent_ = false; };
  chkAutoOpen.onLostFocus = [this] { focusLent_ = false; };
  txtSpecies.setLabel(Label_);
  txtAvePeriod.setLabel(Label1, &lblAvePeriod);
  txtNAAQSPSDLimit.setLabel(lblNAAQSPSDLimit, &lblNAAQSPSDLimitValue);
  txtSILLimit.setLabel(Label3, &lblSILLimitValue);
}

void frmRunSummary::Form_Load() {
  const bool naaqs = theCase().Standard == kNaaqs;
  lblAnalysisType.setText(theCase().AreaClass + " " + theCase().Standard + "/SIL");
  txtSpecies.setText(theCase().Species);
  txtAvePeriod.setText(theCase().AveragingHours);
  txtNAAQSPSDLimit.setText(theCase().StandardLimit);
  lblNAAQSPSDLimitValue.setText(kUnit);
  txtSILLimit.setText(theCase().SilLimit);
  lblSILLimitValue.setText(kUnit);
  lblNAAQSPSDLimit.setText(theCase().Standard + (naaqs ? " Standard:" : " Increment:"));
  lblAmbientBckg.setVisible(naaqs);
  lblAmbientConc.setVisible(naaqs);
  lblAmbientConc.setText(theCase().AmbientBackground + " " + kUnit);
  lblRank1_YesNo.setText(theCase().Rank1Flag == kRank1Excluded ? "Excluded" : "Included");
  lblStatus.setText("");
  lblRunning.setText("");
  chkAutoOpen.setChecked(true);
}

void frmRunSummary::cmdBack_Click() { requestClose(); }

class frmRunSummary::RunInProgress {
 public:
  RunInProgress(frmRunSummary& window, EngineRun& run) : window_(window) { window_.run_ = &run; }
  ~RunInProgress() {
    window_.run_ = nullptr;
    window_.lblRunning.setText("");
    window_.setRunning(false);
  }
  RunInProgress(const RunInProgress&) = delete;
  RunInProgress& operator=(const RunInProgress&) = delete;

 private:
  frmRunSummary& window_;
};

void frmRunSummary::cmdRUN_Click() {
  // A second press can arrive while the first still prepares its files.
  if (run_ != nullptr) return;
  takeValuesBack();
  RunStatus.reset();
  lblStatus.setText("");
  opening_.request_stop();
  {
    EngineRun run(*this, lblRunning);
    const RunInProgress inProgress(*this, run);
    performRun(run);
    run.finish();
  }
  showOutcome();
  if (RunStatus && isOpen() && chkAutoOpen.checked()) openListFile();
}

void frmRunSummary::takeValuesBack() {
  theCase().Species = trimBlanks(txtSpecies.text());
  theCase().AveragingHours = trimBlanks(txtAvePeriod.text());
  theCase().StandardLimit = trimBlanks(txtNAAQSPSDLimit.text());
  theCase().SilLimit = trimBlanks(txtSILLimit.text());
}

void frmRunSummary::performRun(EngineRun& run) {
  if (!run.prepare()) return;
  setRunning(true);
  if (run.start()) RunStatus = run.waitForVerdict();
}

/// While a run lasts, the check box is what still counts for it, so it gets the focus that "RUN"
/// loses; "RUN" gets it back unless the user has moved it or used the box meanwhile.
void frmRunSummary::setRunning(bool running) {
  cmdRUN.setEnabled(!running);
  cmdBack.setEnabled(!running);
  if (running && focused() == &cmdRUN) {
    setFocus(chkAutoOpen);
    focusLent_ = true;
  } else if (!running && std::exchange(focusLent_, false)) {
    setFocus(cmdRUN);
  }
}

void frmRunSummary::showOutcome() {
  if (!RunStatus) return;
  lblStatus.setText(*RunStatus == Verdict::kCompleted ? "RUN COMPLETED"
                                                      : "RUN FAILED - SEE LIST FILE");
  announce(lblStatus);
}

/// "RUN" is usable again meanwhile: the list file of an earlier run is of no interest any more.
void frmRunSummary::openListFile() {
  opening_ = std::stop_source();
  const Status opened =
      OpenFileInNotepad(theCase().WorkDir, theCase().ListFile, opening_.get_token());
  if (opened) return;
  showFailure(this, "The list file could not be opened in notepad:", opened.error(),
              "The run is not affected. Please open the list file yourself.");
}

bool frmRunSummary::queryUnload() {
  return run_ == nullptr || !run_->awaitsVerdict() ||
         messageBox(this, "The engine is still running. Stop it and close this window?",
                    kWarningTitle, Buttons::kYesNo) == Answer::kYes;
}

void frmRunSummary::Form_Unload() {
  opening_.request_stop();
  if (run_ != nullptr && !RunStatus) run_->abandon();
}

std::string frmRunSummary::sessionEndObjection() const {
  return run_ == nullptr ? "" : "The engine is still running.";
}

void frmRunSummary::sessionEnds() {
  if (run_ != nullptr) run_->abandon();
}

}  // namespace korventally
