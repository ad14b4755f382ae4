#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/button.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/geometry.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {

/// A box for a part of the start time. Its placeholder shows how many digits it takes.
class TimeBox : public TextBox {
 public:
  TimeBox(Container& frame, Rect place, const std::string& placeholder, int digits)
      : TextBox(frame, place, "", digits) {
    setPlaceholder(placeholder);
  }
};

/// Step 4: the receptors, the start time, the run length and the Rank 1 option.
class ProcessingInfoStep : public WizardStep {
 public:
  explicit ProcessingInfoStep(StepHost& host);

  StepFrame frameProcessingInfo{wizard_, {120, 5880, 11295, 2535}, "PROCESSING INFORMATION:"};

  Frame frameReceptorDATFormat{
      frameProcessingInfo, {360, 325, 6615, 2070}, "File with Receptors to be Processed:"};
  TextBox txtReceptorDATFile{frameReceptorDATFormat, {240, 420, 5150, 315}, "", kLongestText};
  Button cmdBrowseReceptorDAT{frameReceptorDATFormat, {5480, 405, 975, 315}, "Browse"};
  Label lblReceptorFileFormat{
      frameReceptorDATFormat, {240, 960, 1335, 255}, "File Format", Align::kLeft, fonts::kBold};
  OptionButton optReceptor_TOLVREN{
      frameReceptorDATFormat, {480, 1275, 2775, 210}, "TOLVREN Output Ranked DAT File", true};
  OptionButton optReceptor_Generic{
      frameReceptorDATFormat, {480, 1575, 2175, 210}, "Generic (X,Y,ID) DAT File"};

  Frame frameRunLength{frameProcessingInfo, {7080, 325, 3975, 1300}, "Start Time and Run Length:"};
  Label lblYear{frameRunLength, {120, 345, 495, 255}, "Year:", Align::kRight};
  TimeBox txtYear{frameRunLength, {670, 300, 615, 315}, "YYYY", kLongestYear};
  Label lblDay{frameRunLength, {1320, 345, 495, 255}, "Day:", Align::kRight};
  TimeBox txtDay{frameRunLength, {1870, 300, 615, 315}, "DD", kLongestTimePart};
  Label lblMonth{frameRunLength, {120, 865, 495, 255}, "Month:", Align::kRight};
  TimeBox txtMonth{frameRunLength, {670, 820, 615, 315}, "MM", kLongestTimePart};
  Label lblHour{frameRunLength, {1320, 865, 495, 255}, "Hour:", Align::kRight};
  TimeBox txtHour{frameRunLength, {1870, 820, 615, 315}, "HH", kLongestTimePart};
  Line Line1{frameRunLength, {2615, 240, 0, 960}};
  Label lblRunLength{frameRunLength, {2760, 350, 975, 255}, "Run Length:"};
  TextBox txtRunLength{frameRunLength, {2760, 660, 615, 315}, "", kLongestRunLength};
  Label lblHours{frameRunLength, {3415, 705, 495, 255}, "hours"};

  Frame frameRank1Values{frameProcessingInfo, {7080, 1720, 3975, 680}, "Rank 1 Values:"};
  OptionButton optRank1_Include{frameRank1Values, {670, 320, 855, 210}, "Include", true};
  OptionButton optRank1_Exclude{frameRank1Values, {1870, 320, 975, 210}, "Exclude"};

  NavigationColumn Frame6{wizard_, {11640, 5880, 1455, 2535}};
  Button cmdPrevious4{Frame6, {240, 840, 1000, 315}, "PREVIOUS"};
  Button cmdNext4{Frame6, {240, 1380, 1000, 315}, "NEXT", fonts::kBold};

  const ControlGroup ProcessingInfoControls{&frameProcessingInfo,
                                            &frameReceptorDATFormat,
                                            &optReceptor_TOLVREN,
                                            &optReceptor_Generic,
                                            &lblReceptorFileFormat,
                                            &cmdBrowseReceptorDAT,
                                            &frameRunLength,
                                            &lblYear,
                                            &lblMonth,
                                            &lblDay,
                                            &lblHour,
                                            &lblRunLength,
                                            &lblHours,
                                            &cmdPrevious4,
                                            &cmdNext4,
                                            &frameRank1Values,
                                            &optRank1_Exclude,
                                            &optRank1_Include};
  const FieldGroup ProcessingInfoFields{&txtReceptorDATFile, &txtYear, &txtMonth, &txtDay, &txtHour,
                                        &txtRunLength};

  const ControlGroup& controls() const override { return ProcessingInfoControls; }
  const FieldGroup& fields() const override { return ProcessingInfoFields; }
  const Frame& frame() const override { return frameProcessingInfo; }
  std::vector<Control*> tabStops() override;
  std::vector<Control*> tabStopsBack() override { return {&cmdPrevious4}; }
  /// An annual period gets the hours of its own year. Only then must the year be a number.
  bool capture(AnalysisCase& into) override;
  void fill(const AnalysisCase& from) override;

  void cmdBrowseReceptorDAT_Click();
  void cmdPrevious4_Click();
  void cmdNext4_Click();
  void txtYear_GotFocus();
  void txtMonth_GotFocus();
  void txtDay_GotFocus();
  void txtHour_GotFocus();
  void txtMonth_LostFocus();
  void txtDay_LostFocus();
  void txtHour_LostFocus();
  void txtYear_KeyPress(std::int16_t& keyCode);
  void txtMonth_KeyPress(std::int16_t& keyCode);
  void txtDay_KeyPress(std::int16_t& keyCode);
  void txtHour_KeyPress(std::int16_t& keyCode);
  void txtRunLength_KeyPress(std::int16_t& keyCode);

 private:
  void bindHandlers();
  void takeDigitsOnly(std::int16_t& keyCode);
  bool checkReceptorFile();
  bool checkYear();
  bool checkFilledIn(TextBox& box, const std::string& message);
  bool refuseAnnualYear();
};

}  // namespace korventally
