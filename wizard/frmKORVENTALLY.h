#pragma once

#include <string>
#include <vector>

#include "info/frmAboutKORVENTALLY.h"
#include "info/frmKORVENTALLYHelp.h"
#include "platform/button.h"
#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/font.h"
#include "platform/menu.h"
#include "platform/picture_box.h"
#include "wizard/analysis_type_step.h"
#include "wizard/output_file_step.h"
#include "wizard/processing_info_step.h"
#include "wizard/source_groups_step.h"
#include "wizard/step_host.h"
#include "wizard/working_directory_step.h"

namespace korventally {

/// The wizard: five steps from top to bottom, of which one is open at a time, over a row of
/// buttons. Each step opens the next once its input is good; "PREVIOUS" and "Back to Top" lead back
/// without a check. A control file given at the start, or dropped on the window while the first
/// step is open, fills all steps. Closing the window ends the program.
class frmKORVENTALLY : public StepHost {
 public:
  /// `controlFiles` are those that the user has started the program with, of which there can be
  /// one.
  explicit frmKORVENTALLY(std::vector<std::string> controlFiles = {});

  static constexpr Font kBackToTopFont{"Arial", 12, true};
  static constexpr Font kRunFont{"Arial", 14.25, true};
  static constexpr Font kCancelFont{"Arial", 14.25};

  CommonDialog cdlBrowse{*this};

  Button cmdBackToTop{*this, {120, 9600, 1635, 500}, "Back to Top", kBackToTopFont};
  Button cmdRUN{*this, {4950, 9600, 1635, 500}, "RUN", kRunFont};
  Button cmdCancel{*this, {6694, 9600, 1635, 500}, "Cancel", kCancelFont};
  PictureBox Picture2{*this, {12270, 9780, 810, 360}, Picture::kLogo};

  WorkingDirectoryStep workingDirectory{*this};
  AnalysisTypeStep analysisType{*this};
  SourceGroupsStep sourceGroups{*this};
  ProcessingInfoStep processingInfo{*this};
  OutputFileStep outputFile{*this, cmdRUN};

  MenuEntry mnuExit{"E&xit", [this] { mnuExit_Click(); }};
  MenuEntry mnuKORVENTALLYHelp{"KORVENTALLY &Help", [this] { mnuKORVENTALLYHelp_Click(); }};
  MenuEntry mnuSeparator1{"-", {}};
  MenuEntry mnuAboutKORVENTALLY{"&About KORVENTALLY...", [this] { mnuAboutKORVENTALLY_Click(); }};
  Menu mnuFile{"&File", {&mnuExit}};
  Menu mnuHelp{"&Help", {&mnuKORVENTALLYHelp, &mnuSeparator1, &mnuAboutKORVENTALLY}};

  void goForwardFrom(WizardStep& step) override;
  void goBackFrom(WizardStep& step) override;
  const std::string& askForFile(const std::string& filter) override;

  void mnuExit_Click();
  void mnuKORVENTALLYHelp_Click();
  void mnuAboutKORVENTALLY_Click();
  void cmdCancel_Click();
  void cmdBackToTop_Click();
  /// The run request: captures the case, derives its limits and shows the run summary.
  void cmdRUN_Click();

 protected:
  void Form_Load() override;
  void shown() override;
  void filesDropped(const std::vector<std::string>& paths) override;
  /// The first control of the open step that can be used.
  Control* preferredFocus() const override;

 private:
  std::vector<Control*> wholeTabOrder();
  WizardStep* openStep() const;
  void switchSteps(WizardStep& from, WizardStep& to, WizardStep::Way way);
  bool CaptureCase();
  /// Fills all steps from the one control file, or says why not and leaves everything as it is.
  void openControlFiles(const std::vector<std::string>& paths);

  /// From the first to the last, in which "RUN" is pressed.
  const std::vector<WizardStep*> steps_{&workingDirectory, &analysisType, &sourceGroups,
                                        &processingInfo, &outputFile};

  const std::vector<std::string> controlFiles_;
  frmAboutKORVENTALLY about_;
  frmKORVENTALLYHelp help_;
};

}  // namespace korventally
