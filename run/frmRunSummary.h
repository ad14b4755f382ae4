#pragma once

#include <optional>
#include <stop_token>

#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/color.h"
#include "platform/font.h"
#include "platform/label.h"
#include "platform/text_box.h"
#include "platform/window.h"
#include "run/engine_run.h"
#include "run/verdict.h"

namespace korventally {

/// The last look at a case before the engine runs on it. Species, averaging period and the two
/// limits can still be changed; "RUN" runs the engine and shows its verdict here.
class frmRunSummary : public Window {
 public:
  frmRunSummary();

  static constexpr Font kCaptionFont{"Arial", 9, true};
  static constexpr Font kValueFont{"Arial", 9};
  static constexpr Font kStatusFont{"Arial", 9.75, true};
  static constexpr Font kRunFont{"Arial", 14.25, true};
  static constexpr Font kBackFont{"Arial", 14.25};

  Label Label2{*this, {1440, 360, 1815, 255}, "Type of Analysis:", Align::kRight, kCaptionFont};
  Label lblAnalysisType{*this, {3360, 360, 1815, 255}, "", Align::kLeft, kValueFont};

  Label Label_{*this, {1440, 840, 1815, 255}, "Species:", Align::kRight, kCaptionFont};
  TextBox txtSpecies{*this, {3360, 800, 1095, 330}, "", 0, kValueFont};

  Label Label1{*this, {1440, 1320, 1815, 255}, "Averaging Period:", Align::kRight, kCaptionFont};
  TextBox txtAvePeriod{*this, {3360, 1280, 1095, 330}, "", 0, kValueFont};
  Label lblAvePeriod{*this, {4560, 1320, 375, 255}, "hrs", Align::kLeft, kValueFont};

  Label lblNAAQSPSDLimit{*this, {1440, 1800, 1815, 255}, "", Align::kRight, kCaptionFont};
  TextBox txtNAAQSPSDLimit{*this, {3360, 1760, 1095, 330}, "", 0, kValueFont};
  Label lblNAAQSPSDLimitValue{*this, {4560, 1800, 1815, 255}, "", Align::kLeft, kValueFont};

  Label Label3{*this, {1440, 2280, 1815, 255}, "SIL Limit:", Align::kRight, kCaptionFont};
  TextBox txtSILLimit{*this, {3360, 2240, 1095, 330}, "", 0, kValueFont};
  Label lblSILLimitValue{*this, {4560, 2280, 1815, 255}, "", Align::kLeft, kValueFont};

  Label lblAmbientBckg{
      *this, {1080, 2760, 2175, 255}, "Ambient Background:", Align::kRight, kCaptionFont};
  Label lblAmbientConc{*this, {3360, 2760, 1815, 255}, "", Align::kLeft, kValueFont};

  Label lblRank1Values{
      *this, {1080, 3240, 2175, 255}, "Rank 1 Values:", Align::kRight, kCaptionFont};
  Label lblRank1_YesNo{*this, {3360, 3240, 1815, 255}, "", Align::kLeft, kValueFont};

  Label lblRunning{*this, {2880, 3720, 1095, 375}, "", Align::kLeft, kStatusFont, colors::kBlue};
  Label lblStatus{*this, {120, 3720, 6375, 375}, "", Align::kCentre, kStatusFont, colors::kBlue};
  CheckBox chkAutoOpen{
      *this, {1680, 4200, 3375, 255}, "Open KORVENTALLY output file after run", true};
  Button cmdRUN{*this, {1846, 4560, 1400, 450}, "RUN", kRunFont};
  Button cmdBack{*this, {3368, 4560, 1400, 450}, "Back", kBackFont};

  bool closesOnEscape() const override { return run_ == nullptr; }
  std::string sessionEndObjection() const override;
  void sessionEnds() override;

  /// The engine's verdict on the last run, or none.
  std::optional<Verdict> RunStatus;

  void cmdRUN_Click();
  void cmdBack_Click();

 protected:
  void Form_Load() override;
  bool queryUnload() override;
  void Form_Unload() override;

 private:
  /// The run in progress as this window knows it; however it ends, the window is usable again.
  class RunInProgress;

  void takeValuesBack();
  void performRun(EngineRun& run);
  void setRunning(bool running);
  void showOutcome();
  void openListFile();

  EngineRun* run_ = nullptr;
  std::stop_source opening_;  ///< ends the opening of a list file that nobody waits for any more
  bool focusLent_ = false;    ///< a run has moved the focus away from "RUN", and nobody else since
};

}  // namespace korventally
