#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/button.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {

/// Step 3: one page per source group, all shown in the same frame, with the group's concentration
/// file and name, and on the first page the constant ambient background.
class SourceGroupsStep : public WizardStep {
 public:
  explicit SourceGroupsStep(StepHost& host);

  StepFrame frameSourceGroupInfo{wizard_, {120, 3120, 11295, 2655}, ""};

  Label lblConcFile{
      frameSourceGroupInfo, {240, 435, 1695, 255}, "Concentration File:", Align::kRight};
  TextBox txtConcFile{frameSourceGroupInfo, {2040, 390, 7935, 315}, "", kLongestText};
  Button cmdBrowseFile{frameSourceGroupInfo, {10080, 390, 975, 315}, "Browse"};
  Label lblNote1{
      frameSourceGroupInfo,
      {2040, 735, 7935, 210},
      "(Units must be g/m**3. Path/filenames may be no more than 132 characters in length.)"};

  Label lblGroupName{
      frameSourceGroupInfo, {240, 1110, 1695, 255}, "Source Group Name:", Align::kRight};
  TextBox txtGroupName{
      frameSourceGroupInfo, {2040, 1065, 1935, 315}, "ALL_SOURCES", kLongestGroupName};
  Label lblNote2{frameSourceGroupInfo, {2040, 1410, 1935, 210}, "(Up to 13 chars.)"};
  Label lblNote4{frameSourceGroupInfo, {2040, 1635, 1935, 210}, "(Must begin with \"ALL\".)"};
  Label lblNote5{frameSourceGroupInfo,
                 {240, 1410, 1695, 420},
                 "(For output table column headers.)",
                 Align::kRight};

  Label lblAmbientBckg{
      frameSourceGroupInfo, {4440, 1110, 1695, 255}, "Ambient Background:", Align::kRight};
  TextBox txtAmbientBckg{frameSourceGroupInfo, {6240, 1065, 1935, 315}, "", kLongestText};
  Label lblugm3{frameSourceGroupInfo, {8280, 1110, 735, 255}, "ug/m**3"};
  Label lblNote3{frameSourceGroupInfo,
                 {6240, 1410, 4815, 630},
                 "(Please enter a constant ambient background concentration value if it is not "
                 "already included in the above selected ALL SOURCES concentration file.)"};

  Button cmdPrevGroup{frameSourceGroupInfo, {3720, 2145, 1875, 375}, "<  PREVIOUS GROUP"};
  Button cmdNextGroup{frameSourceGroupInfo,
                      {5700, 2145, 1875, 375},
                      "  NEXT GROUP  >",
                      fonts::kDefault,
                      Button::Style::kGraphical};

  NavigationColumn Frame1{wizard_, {11640, 3120, 1455, 2655}};
  Button cmdPrevious3{Frame1, {240, 900, 1000, 315}, "PREVIOUS"};
  Button cmdNext3{Frame1, {240, 1440, 1000, 315}, "NEXT", fonts::kBold};

  const ControlGroup SourceGroupInfoControls{&frameSourceGroupInfo,
                                             &lblConcFile,
                                             &lblGroupName,
                                             &lblAmbientBckg,
                                             &lblugm3,
                                             &lblNote1,
                                             &lblNote2,
                                             &lblNote3,
                                             &lblNote4,
                                             &lblNote5,
                                             &cmdBrowseFile,
                                             &cmdPrevious3};
  const FieldGroup SourceGroupInfoFields{&txtConcFile, &txtGroupName, &txtAmbientBckg};
  const ControlGroup AmbientBackgroundControls{&lblAmbientBckg, &lblugm3, &lblNote3, &lblNote4,
                                               &txtAmbientBckg};

  const ControlGroup& controls() const override { return SourceGroupInfoControls; }
  const FieldGroup& fields() const override { return SourceGroupInfoFields; }
  const Frame& frame() const override { return frameSourceGroupInfo; }
  std::vector<Control*> tabStops() override;
  std::vector<Control*> tabStopsBack() override { return {&cmdPrevious3}; }
  void opened(Way way) override;
  void closed(Way) override { disablePagingButtons(); }
  bool capture(AnalysisCase& into) override;
  void fill(const AnalysisCase& from) override;

  /// Slot of the page shown.
  std::int32_t CurrentGroup = 0;
  /// The page caption as it was read back when the step was opened.
  std::string CaptionGroupKind;
  std::int32_t CaptionGroupSlot = 0;
  std::int32_t CaptionGroupCount = 0;
  /// Result of the last ValidateConcFile.
  bool ConcFileInvalid = false;

  void cmdNextGroup_Click();
  void cmdPrevGroup_Click();
  void cmdNext3_Click();
  void cmdPrevious3_Click();
  void cmdBrowseFile_Click();
  void txtGroupName_GotFocus();
  void txtConcFile_LostFocus();
  void txtGroupName_LostFocus();
  void txtAmbientBckg_LostFocus();

 private:
  void bindHandlers();
  /// Shows the page to work on, once the number of groups is set, and opens the paging buttons.
  void OpenGroupPages();
  /// Opens the paging buttons of the page from which the step was left forward.
  void reopenPagingButtons();
  void disablePagingButtons();
  void ParseGroupCaption(const std::string& caption);
  void LoadGroupPage(std::int32_t slot);
  void StoreGroupPage(std::int32_t slot);
  void SetAmbientBackgroundVisible(std::int32_t slot);
  void ValidateConcFile();
  void refuseConcFile(const std::string& message);
  const std::string& ShowConcFileDialog();
};

}  // namespace korventally
