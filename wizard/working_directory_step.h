#pragma once

#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/button.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {

/// Step 1: the folder that holds the study and receives the files of a run.
class WorkingDirectoryStep : public WizardStep {
 public:
  explicit WorkingDirectoryStep(StepHost& host);

  StepFrame frameWorkingDirectory{wizard_, {120, 120, 11295, 855}, "WORKING DIRECTORY:"};
  TextBox txtWorkDir{frameWorkingDirectory, {360, 360, 9615, 315}};
  Button cmdBrowseWorkDir{frameWorkingDirectory, {10080, 340, 975, 315}, "Browse"};

  NavigationColumn Frame2{wizard_, {11640, 120, 1455, 855}};
  Button cmdNext1{Frame2, {240, 340, 1000, 315}, "NEXT", fonts::kBold};

  const ControlGroup WorkingDirectoryControls{&frameWorkingDirectory, &cmdBrowseWorkDir, &cmdNext1};
  const FieldGroup WorkingDirectoryFields{&txtWorkDir};

  const ControlGroup& controls() const override { return WorkingDirectoryControls; }
  const FieldGroup& fields() const override { return WorkingDirectoryFields; }
  const Frame& frame() const override { return frameWorkingDirectory; }
  std::vector<Control*> tabStops() override { return {&txtWorkDir, &cmdBrowseWorkDir, &cmdNext1}; }
  bool capture(AnalysisCase& into) override;
  void fill(const AnalysisCase& from) override;

  /// The directory as it stands in the box.
  const std::string& path() const { return txtWorkDir.text(); }
  void setPath(const std::string& path) { txtWorkDir.setText(path); }

  void cmdBrowseWorkDir_Click();
  /// Makes the path end with a backslash; blanks around it and the mark of a wrong one go.
  void txtWorkDir_LostFocus();
  void cmdNext1_Click();
};

}  // namespace korventally
