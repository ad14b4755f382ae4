#pragma once

#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/button.h"
#include "platform/control.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {

/// Step 5: the name of the list file. "RUN", which the window owns, is usable while it is open.
class OutputFileStep : public WizardStep {
 public:
  OutputFileStep(StepHost& host, Button& cmdRUN);

  StepFrame frameOutputFile{wizard_, {120, 8520, 11295, 855}, "OUTPUT RESULTS FILE:"};
  Label lblLSTFilename{frameOutputFile, {420, 415, 1095, 255}, "List Filename:"};
  TextBox txtLSTFilename{frameOutputFile, {1440, 380, 8535, 315}, kDefaultListFile, kLongestText};
  Button cmdDefault_LST{frameOutputFile, {10080, 360, 975, 315}, "Default"};

  NavigationColumn Frame7{wizard_, {11640, 8520, 1455, 855}};
  Button cmdPrevious5{Frame7, {240, 340, 1000, 315}, "PREVIOUS"};

  const ControlGroup OutputFileControls;
  const FieldGroup OutputFileFields{&txtLSTFilename};

  const ControlGroup& controls() const override { return OutputFileControls; }
  const FieldGroup& fields() const override { return OutputFileFields; }
  const Frame& frame() const override { return frameOutputFile; }
  std::vector<Control*> tabStops() override { return {&txtLSTFilename, &cmdDefault_LST}; }
  std::vector<Control*> tabStopsBack() override { return {&cmdPrevious5}; }
  /// Refuses a name that no list file can have, and asks before a list file is overwritten.
  bool capture(AnalysisCase& into) override;
  void fill(const AnalysisCase& from) override;

  void cmdDefault_LST_Click();
  void cmdPrevious5_Click();

 private:
  bool checkListFile(const AnalysisCase& captured);
  bool askToOverwrite();
};

}  // namespace korventally
