#pragma once

#include <string>
#include <utility>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "limits/species.h"
#include "platform/button.h"
#include "platform/color.h"
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

/// An option of a sub-frame.
class SubFrameOption : public OptionButton {
 public:
  SubFrameOption(Container& frame, Rect place, std::string caption, bool selected = false)
      : OptionButton(frame, place, std::move(caption), selected, fonts::kBold, colors::kNavy) {}
};

/// The option of a species or of an averaging period, which the regulation's table names.
class SpeciesOption : public SubFrameOption {
 public:
  SpeciesOption(Container& frame, Rect place, const Species& of, bool selected = false)
      : SubFrameOption(frame, place, of.name, selected), species(of) {}
  const Species& species;
};

class PeriodOption : public SubFrameOption {
 public:
  PeriodOption(Container& frame, Rect place, const AveragingPeriod& of, bool selected = false)
      : SubFrameOption(frame, place, of.caption, selected), period(of) {}
  const AveragingPeriod& period;
};

/// An arrow from one sub-frame to the next. Its colour says whether it is the one to press next.
class RightArrow : public Button {
 public:
  RightArrow(Container& frame, Rect place)
      : Button(frame, place, "\u00AE", fonts::kArrow, Button::Style::kGraphical) {}
};

/// An arrow back to the sub-frame before.
class LeftArrow : public Button {
 public:
  LeftArrow(Container& frame, Rect place) : Button(frame, place, "\u00AC", fonts::kArrow) {}
};

/// Step 2: what is judged (area class, standard, species, averaging period), chosen in four
/// sub-frames that arrows unlock one after another, and the number of OTHER source groups.
class AnalysisTypeStep : public WizardStep {
 public:
  explicit AnalysisTypeStep(StepHost& host);

  StepFrame frameAnalysisType{
      wizard_, {120, 1080, 11295, 1935}, "SELECT THE TYPE OF ANALYSIS TO PERFORM:"};

  Frame frameArea{frameAnalysisType, {240, 360, 1380, 1410}, "AREA:"};
  SubFrameOption optClassI{frameArea, {150, 330, 1140, 255}, kClassI, true};
  SubFrameOption optClassII{frameArea, {150, 670, 1140, 255}, kClassII};

  RightArrow cmdNextArrow1{frameAnalysisType, {1740, 570, 480, 420}};
  LeftArrow cmdBackArrow1{frameAnalysisType, {1740, 1110, 480, 420}};

  Frame frameEPAStandard{frameAnalysisType, {2340, 360, 1380, 1410}, "STANDARD:"};
  SubFrameOption optNAAQS{frameEPAStandard, {150, 330, 1140, 255}, kNaaqs, true};
  SubFrameOption optPSD{frameEPAStandard, {150, 670, 1140, 255}, kPsd};

  RightArrow cmdNextArrow2{frameAnalysisType, {3840, 570, 480, 420}};
  LeftArrow cmdBackArrow2{frameAnalysisType, {3840, 1110, 480, 420}};

  Frame frameSpecies{frameAnalysisType, {4440, 360, 1380, 1410}, "SPECIES:"};
  SpeciesOption optSO2{frameSpecies, {150, 330, 1140, 255}, kSo2, true};
  SpeciesOption optPM10{frameSpecies, {150, 670, 1140, 255}, kPm10};
  SpeciesOption optNOX{frameSpecies, {150, 1010, 1140, 255}, kNox};

  RightArrow cmdNextArrow3{frameAnalysisType, {5940, 570, 480, 420}};
  LeftArrow cmdBackArrow3{frameAnalysisType, {5940, 1110, 480, 420}};

  Frame frameAveragingPeriod{frameAnalysisType, {6540, 360, 2040, 1410}, "AVERAGING PERIOD:"};
  PeriodOption opt3hr{frameAveragingPeriod, {150, 330, 1740, 255}, kThreeHours, true};
  PeriodOption opt24hr{frameAveragingPeriod, {150, 670, 1740, 255}, kDay};
  PeriodOption optAnnual{frameAveragingPeriod, {150, 1010, 1740, 255}, kAnnual};

  Line Line3{frameAnalysisType, {8820, 360, 0, 1410}};
  Label lblNumOfOthers{
      frameAnalysisType, {9060, 555, 1995, 420}, "Number of OTHER Source Groups to Analyze"};
  TextBox txtNumOfOthers{frameAnalysisType, {9060, 1080, 975, 315}};

  NavigationColumn Frame4{wizard_, {11640, 1080, 1455, 1935}};
  Button cmdPrevious2{Frame4, {240, 540, 1000, 315}, "PREVIOUS"};
  Button cmdNext2{Frame4, {240, 1080, 1000, 315}, "NEXT", fonts::kBold};

  const ControlGroup AnalysisTypeControls{&cmdPrevious2, &cmdNext2, &frameAnalysisType,
                                          &lblNumOfOthers};
  const ControlGroup AreaControls{&frameArea, &optClassI, &optClassII, &cmdNextArrow1};
  const ControlGroup EPAStandardControls{&frameEPAStandard, &optNAAQS, &optPSD, &cmdNextArrow2,
                                         &cmdBackArrow1};
  const ControlGroup SpeciesControls{&frameSpecies, &optSO2,        &optPM10,
                                     &optNOX,       &cmdNextArrow3, &cmdBackArrow2};
  const ControlGroup AveragingPeriodControls{&frameAveragingPeriod, &opt3hr, &opt24hr, &optAnnual,
                                             &cmdBackArrow3};
  const FieldGroup AnalysisTypeFields{&txtNumOfOthers};

  const ControlGroup& controls() const override { return AnalysisTypeControls; }
  const FieldGroup& fields() const override { return AnalysisTypeFields; }
  const Frame& frame() const override { return frameAnalysisType; }
  std::vector<Control*> tabStops() override;
  std::vector<Control*> tabStopsBack() override;
  void opened(Way way) override;
  void closed(Way way) override;
  /// Captures an annual period as the hours of a common year: the start year may make it longer.
  bool capture(AnalysisCase& into) override;
  void fill(const AnalysisCase& from) override;

  void cmdNextArrow1_Click();
  void cmdBackArrow1_Click();
  void cmdNextArrow2_Click();
  void cmdBackArrow2_Click();
  void cmdNextArrow3_Click();
  void cmdBackArrow3_Click();
  void cmdPrevious2_Click();
  void cmdNext2_Click();

 private:
  void DisableAnalysisSubFrames();
  /// Also, no arrow is the one to press next.
  void closeSubFrames();
  void applySpeciesRule();
  void bindHandlers();
  const Species& species() const;
  const AveragingPeriod& period() const;
};

}  // namespace korventally
