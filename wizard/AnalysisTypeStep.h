#pragma once

#include "wizard/wizard_step.h"

namespace korventally {

/// Step 2: what is judged (area class, standard, species, averaging period), chosen in four
/// sub-frames that arrows unlock one after another, and the number of OTHER source groups.
class AnalysisTypeStep : public WizardStep {
 public:
  explicit AnalysisTypeStep(frmKORVENTALLY& owner);

  // clang-format off
  Frame frameAnalysisType;

  Frame frameArea{frameAnalysisType, {240, 360, 1380, 1410}, "AREA:"};
  OptionButton optClassI{frameArea, {150, 330, 1140, 255}, "Class I", true, fonts::kBold, colors::kNavy};
  OptionButton optClassII{frameArea, {150, 670, 1140, 255}, "Class II", false, fonts::kBold, colors::kNavy};

  Button cmdNextArrow1{frameAnalysisType, {1740, 570, 480, 420}, "\u00AE", fonts::kArrow, Button::Style::kGraphical};
  Button cmdBackArrow1{frameAnalysisType, {1740, 1110, 480, 420}, "\u00AC", fonts::kArrow};

  Frame frameEPAStandard{frameAnalysisType, {2340, 360, 1380, 1410}, "STANDARD:"};
  OptionButton optNAAQS{frameEPAStandard, {150, 330, 1140, 255}, "NAAQS", true, fonts::kBold, colors::kNavy};
  OptionButton optPSD{frameEPAStandard, {150, 670, 1140, 255}, "PSD", false, fonts::kBold, colors::kNavy};

  Button cmdNextArrow2{frameAnalysisType, {3840, 570, 480, 420}, "\u00AE", fonts::kArrow, Button::Style::kGraphical};
  Button cmdBackArrow2{frameAnalysisType, {3840, 1110, 480, 420}, "\u00AC", fonts::kArrow};

  Frame frameSpecies{frameAnalysisType, {4440, 360, 1380, 1410}, "SPECIES:"};
  OptionButton optSO2{frameSpecies, {150, 330, 1140, 255}, "SO2", true, fonts::kBold, colors::kNavy};
  OptionButton optPM10{frameSpecies, {150, 670, 1140, 255}, "PM10", false, fonts::kBold, colors::kNavy};
  OptionButton optNOX{frameSpecies, {150, 1010, 1140, 255}, "NOX", false, fonts::kBold, colors::kNavy};

  Button cmdNextArrow3{frameAnalysisType, {5940, 570, 480, 420}, "\u00AE", fonts::kArrow, Button::Style::kGraphical};
  Button cmdBackArrow3{frameAnalysisType, {5940, 1110, 480, 420}, "\u00AC", fonts::kArrow};

  Frame frameAveragingPeriod{frameAnalysisType, {6540, 360, 2040, 1410}, "AVERAGING PERIOD:"};
  OptionButton opt3hr{frameAveragingPeriod, {150, 330, 1740, 255}, "3 Hour", true, fonts::kBold, colors::kNavy};
  OptionButton opt24hr{frameAveragingPeriod, {150, 670, 1740, 255}, "24 Hour", false, fonts::kBold, colors::kNavy};
  OptionButton optAnnual{frameAveragingPeriod, {150, 1010, 1740, 255}, "Annual", false, fonts::kBold, colors::kNavy};

  Line Line3{frameAnalysisType, {8820, 360, 0, 1410}};
  Label lblNumOfOthers{frameAnalysisType, {9060, 555, 1995, 420}, "Number of OTHER Source Groups to Analyze", Align::kLeft};
  TextBox txtNumOfOthers{frameAnalysisType, {9060, 1080, 975, 315}};

  Frame Frame4;
  Button cmdPrevious2{Frame4, {240, 540, 1000, 315}, "PREVIOUS"};
  Button cmdNext2{Frame4, {240, 1080, 1000, 315}, "NEXT", fonts::kBold};

  const ControlGroup AnalysisTypeControls{&cmdPrevious2, &cmdNext2, &frameAnalysisType, &lblNumOfOthers};
  const ControlGroup AreaControls{&frameArea, &optClassI, &optClassII, &cmdNextArrow1};
  const ControlGroup EPAStandardControls{&frameEPAStandard, &optNAAQS, &optPSD, &cmdNextArrow2, &cmdBackArrow1};
  const ControlGroup SpeciesControls{&frameSpecies, &optSO2, &optPM10, &optNOX, &cmdNextArrow3, &cmdBackArrow2};
  const ControlGroup AveragingPeriodControls{&frameAveragingPeriod, &opt3hr, &opt24hr, &optAnnual, &cmdBackArrow3};
  const FieldGroup AnalysisTypeFields{&txtNumOfOthers};
  // clang-format on

  const ControlGroup& controls() const override { return AnalysisTypeControls; }
  const FieldGroup& fields() const override { return AnalysisTypeFields; }
  const Frame& frame() const override { return frameAnalysisType; }

  /// Unlocks the first sub-frame.
  void openArea();

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
  void applySpeciesRule();
  void bindHandlers();
};

}  // namespace korventally
