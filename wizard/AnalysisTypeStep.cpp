#include "wizard/AnalysisTypeStep.h"

#include <charconv>
#include <optional>

#include "case/basModule.h"
#include "platform/dialogs.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally {
namespace {

constexpr OleColor kPressNext = colors::kGreen;
constexpr OleColor kIdle = colors::kButtonFace;

void enable(const ControlGroup& group) { EnableStep(group, {}); }
void disable(const ControlGroup& group) { DisableStep(group, {}); }

/// The number of OTHER groups that a text names; an empty text names none of them. No value when
/// the text is no whole number from 0 to 48.
std::optional<std::int32_t> otherGroups(const std::string& typed) {
  if (typed.empty()) return 0;
  const std::string text = trimBlanks(typed);
  std::int32_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || text.starts_with('-')) return std::nullopt;
  if (number > kMostOtherGroups) return std::nullopt;
  return number;
}

}  // namespace

AnalysisTypeStep::AnalysisTypeStep(frmKORVENTALLY& owner)
    : WizardStep(owner),
      frameAnalysisType(owner, {120, 1080, 11295, 1935},
                        "SELECT THE TYPE OF ANALYSIS TO PERFORM:", fonts::kStepCaption,
                        colors::kNavy),
      Frame4(owner, {11640, 1080, 1455, 1935}) {
  optNAAQS.setToolTip("National Ambient Air Quality Standards");
  optPSD.setToolTip("Prevention of Significant Deterioration");
  cmdNextArrow1.setAccessibleName("next: STANDARD");
  cmdBackArrow1.setAccessibleName("back: AREA");
  cmdNextArrow2.setAccessibleName("next: SPECIES");
  cmdBackArrow2.setAccessibleName("back: STANDARD");
  cmdNextArrow3.setAccessibleName("next: AVERAGING PERIOD");
  cmdBackArrow3.setAccessibleName("back: SPECIES");
  txtNumOfOthers.setAccessibleName(lblNumOfOthers.text());
  bindHandlers();
  DisableStep(AnalysisTypeControls, AnalysisTypeFields);
  DisableAnalysisSubFrames();
}

void AnalysisTypeStep::bindHandlers() {
  cmdNextArrow1.onClick = [this] { cmdNextArrow1_Click(); };
  cmdBackArrow1.onClick = [this] { cmdBackArrow1_Click(); };
  cmdNextArrow2.onClick = [this] { cmdNextArrow2_Click(); };
  cmdBackArrow2.onClick = [this] { cmdBackArrow2_Click(); };
  cmdNextArrow3.onClick = [this] { cmdNextArrow3_Click(); };
  cmdBackArrow3.onClick = [this] { cmdBackArrow3_Click(); };
  cmdPrevious2.onClick = [this] { cmdPrevious2_Click(); };
  cmdNext2.onClick = [this] { cmdNext2_Click(); };
}

void AnalysisTypeStep::openArea() { enable(AreaControls); }

void AnalysisTypeStep::cmdNextArrow1_Click() {
  disable(AreaControls);
  enable(EPAStandardControls);
  cmdNextArrow2.setBackColor(kPressNext);
  cmdNextArrow1.setBackColor(kIdle);
}

void AnalysisTypeStep::cmdBackArrow1_Click() {
  enable(AreaControls);
  disable(EPAStandardControls);
  cmdNextArrow1.setBackColor(kPressNext);
  cmdNextArrow2.setBackColor(kIdle);
}

void AnalysisTypeStep::cmdNextArrow2_Click() {
  disable(EPAStandardControls);
  enable(SpeciesControls);
  cmdNextArrow3.setBackColor(kPressNext);
  cmdNextArrow2.setBackColor(kIdle);
}

void AnalysisTypeStep::cmdBackArrow2_Click() {
  enable(EPAStandardControls);
  disable(SpeciesControls);
  cmdNextArrow2.setBackColor(kPressNext);
  cmdNextArrow3.setBackColor(kIdle);
}

void AnalysisTypeStep::cmdNextArrow3_Click() {
  disable(SpeciesControls);
  enable(AveragingPeriodControls);
  cmdNextArrow3.setBackColor(kIdle);
  applySpeciesRule();
}

void AnalysisTypeStep::cmdBackArrow3_Click() {
  enable(SpeciesControls);
  disable(AveragingPeriodControls);
  cmdNextArrow3.setBackColor(kPressNext);
}

/// PM10 has no 3-hour standard, and NOX has an annual one only.
void AnalysisTypeStep::applySpeciesRule() {
  if (optPM10.selected()) {
    DisableControl(opt3hr);
    if (opt3hr.selected()) opt24hr.select();
  } else if (optNOX.selected()) {
    DisableControl(opt3hr);
    DisableControl(opt24hr);
    optAnnual.select();
  }
}

void AnalysisTypeStep::DisableAnalysisSubFrames() {
  for (const ControlGroup* group :
       {&AreaControls, &EPAStandardControls, &SpeciesControls, &AveragingPeriodControls}) {
    disable(*group);
  }
}

void AnalysisTypeStep::cmdPrevious2_Click() {
  switchTo(wizard.workingDirectory);
  DisableAnalysisSubFrames();
}

void AnalysisTypeStep::cmdNext2_Click() {
  if (optPM10.selected() && opt3hr.selected()) {
    messageBox(&wizard, "PM10 may not be selected with a 3 HOUR averaging period.", kErrorTitle);
    return;
  }
  if (optNOX.selected() && !optAnnual.selected()) {
    messageBox(&wizard, "NOX must be selected with an ANNUAL averaging period.", kErrorTitle);
    return;
  }
  const std::optional<std::int32_t> others = otherGroups(txtNumOfOthers.text());
  if (!others) {
    return refuse(txtNumOfOthers,
                  "The number of OTHER source groups must be a whole number from 0 to 48.");
  }
  // Not ClearFieldHighlight: an emptied box is right here, and must not stay marked.
  txtNumOfOthers.setBackColor(colors::kWhite);
  switchTo(wizard.sourceGroups);
  DisableAnalysisSubFrames();
  basModule::analysisCase.GroupCount = *others + kFixedGroups;
  wizard.sourceGroups.OpenGroupPages();
  for (Button* arrow : {&cmdNextArrow1, &cmdNextArrow2, &cmdNextArrow3}) arrow->setBackColor(kIdle);
}

}  // namespace korventally
