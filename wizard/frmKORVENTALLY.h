#pragma once

#include <array>

#include "info/frmAboutKORVENTALLY.h"
#include "info/frmKORVENTALLYHelp.h"
#include "platform/dialogs.h"
#include "platform/picture_box.h"
#include "platform/window.h"
#include "wizard/AnalysisTypeStep.h"
#include "wizard/OutputFileStep.h"
#include "wizard/ProcessingInfoStep.h"
#include "wizard/SourceGroupsStep.h"
#include "wizard/WorkingDirectoryStep.h"

namespace korventally {

/// The wizard: five steps from top to bottom, of which one is open at a time, over a row of
/// buttons. Each step opens the next once its input is good; "PREVIOUS" and "Back to Top" lead back
/// without a check. Closing the window ends the program.
class frmKORVENTALLY : public Window {
 public:
  frmKORVENTALLY();

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
  OutputFileStep outputFile{*this};

  MenuEntry mnuExit{"E&xit", [this] { mnuExit_Click(); }};
  MenuEntry mnuKORVENTALLYHelp{"KORVENTALLY &Help", [this] { mnuKORVENTALLYHelp_Click(); }};
  MenuEntry mnuSeparator1{"-", {}};
  MenuEntry mnuAboutKORVENTALLY{"&About KORVENTALLY...", [this] { mnuAboutKORVENTALLY_Click(); }};
  Menu mnuFile{"&File", {&mnuExit}};
  Menu mnuHelp{"&Help", {&mnuKORVENTALLYHelp, &mnuSeparator1, &mnuAboutKORVENTALLY}};

  /// Shows the open-file dialog, starting in the working directory. Returns the chosen file's full
  /// path, or the empty text when it was cancelled.
  const std::string& askForFile(const std::string& filter);

  void mnuExit_Click();
  void mnuKORVENTALLYHelp_Click();
  void mnuAboutKORVENTALLY_Click();
  void cmdCancel_Click();
  void cmdBackToTop_Click();

 protected:
  void Form_Load() override;
  /// The first control of the open step that can be used.
  Control* preferredFocus() const override;

 private:
  std::vector<Control*> forwardTabOrder();
  WizardStep* openStep() const;

  const std::array<WizardStep*, 5> steps_{&workingDirectory, &analysisType, &sourceGroups,
                                          &processingInfo, &outputFile};

  frmAboutKORVENTALLY about_;
  frmKORVENTALLYHelp help_;
};

}  // namespace korventally
