#pragma once

#include "wizard/wizard_step.h"

namespace korventally {

/// Step 5: the name of the list file. The window's "RUN" captures the case from here.
class OutputFileStep : public WizardStep {
 public:
  explicit OutputFileStep(frmKORVENTALLY& owner);

  Frame frameOutputFile;
  Label lblLSTFilename{frameOutputFile, {420, 415, 1095, 255}, "List Filename:"};
  TextBox txtLSTFilename{frameOutputFile, {1440, 380, 8535, 315}, "korventally.lst", 132};
  Button cmdDefault_LST{frameOutputFile, {10080, 360, 975, 315}, "Default"};

  NavigationColumn Frame7;
  Button cmdPrevious5{Frame7, {240, 340, 1000, 315}, "PREVIOUS"};

  const ControlGroup& controls() const override { return OutputFileControls; }
  const FieldGroup& fields() const override { return OutputFileFields; }
  const Frame& frame() const override { return frameOutputFile; }

  void cmdDefault_LST_Click();
  void cmdPrevious5_Click();
  /// The run request: checks the name, asks before a list file is overwritten, captures the case,
  /// derives its limits and shows the run summary.
  void cmdRUN_Click();

  const ControlGroup OutputFileControls;
  const FieldGroup OutputFileFields{&txtLSTFilename};

 private:
  bool checkYear();
  bool checkListFile();
  std::vector<std::string> inputFiles() const;
  void CaptureCase();
  std::string averagingHours() const;
};

}  // namespace korventally
