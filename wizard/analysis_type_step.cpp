#include "wizard/analysis_type_step.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "limits/limits.h"
#include "limits/species.h"
#include "platform/button.h"
#include "platform/color.h"
#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/frame.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {
namespace {

constexpr OleColor kPressNext = colors::kGreen;
constexpr OleColor kIdle = colors::kButtonFace;

void enable(const ControlGroup& group) { EnableStep(group, {}); }
void disable(const ControlGroup& group) { DisableStep(group, {}); }

/// The options of a sub-frame, which holds nothing else, in their order on the screen.
template <typename Option>
std::vector<Option*> optionsOf(const Frame& frame) {
  std::vector<Option*> options;
  for (Control* child : frame.children()) options.push_back(&dynamic_cast<Option&>(*child));
  return options;
}

template <typename Option>
const Option& selectedOf(const Frame& frame) {
  const std::vector<Option*> options = optionsOf<Option>(frame);
  return **std::find_if(options.begin(), options.end(),
                        [](const Option* option) { return option->selected(); });
}

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

AnalysisTypeStep::AnalysisTypeStep(StepHost& host) : WizardStep(host) {
  optNAAQS.setToolTip("National Ambient Air Quality Standards");
  optPSD.setToolTip("Prevention of Significant Deterioration");
  for (Button* arrow : {&cmdNextArrow1, &cmdNextArrow2, &cmdNextArrow3}) {
    arrow->setAccessibleName("next: ");
  }
  for (Button* arrow : {&cmdBackArrow1, &cmdBackArrow2, &cmdBackArrow3}) {
    arrow->setAccessibleName("back: ");
  }
  cmdNextArrow1.setLabel(frameEPAStandard);
  cmdBackArrow1.setLabel(frameArea);
  cmdNextArrow2.setLabel(frameSpecies);
  cmdBackArrow2.setLabel(frameEPAStandard);
  cmdNextArrow3.setLabel(frameAveragingPeriod);
  cmdBackArrow3.setLabel(frameSpecies);
  txtNumOfOthers.setLabel(lblNumOfOthers);
  bindHandlers();
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

std::vector<Control*> AnalysisTypeStep::tabStops() {
  return {&optClassI,     &optClassII, &cmdNextArrow1, &optNAAQS,       &optPSD,
          &cmdNextArrow2, &optSO2,     &optPM10,       &optNOX,         &cmdNextArrow3,
          &opt3hr,        &opt24hr,    &optAnnual,     &txtNumOfOthers, &cmdNext2};
}

std::vector<Control*> AnalysisTypeStep::tabStopsBack() {
  return {&cmdPrevious2, &cmdBackArrow3, &cmdBackArrow2, &cmdBackArrow1};
}

void AnalysisTypeStep::opened(Way way) {
  enable(AreaControls);
  if (way == Way::kForward) cmdNextArrow1.setBackColor(kPressNext);
}

/// "Back to Top" leaves the sub-frames as they are, to be found so again.
void AnalysisTypeStep::closed(Way way) {
  if (way == Way::kToTop) return;
  if (way == Way::kBack) return DisableAnalysisSubFrames();
  closeSubFrames();
}

void AnalysisTypeStep::closeSubFrames() {
  DisableAnalysisSubFrames();
  for (Button* arrow : {&cmdNextArrow1, &cmdNextArrow2, &cmdNextArrow3}) arrow->setBackColor(kIdle);
}

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

const Species& AnalysisTypeStep::species() const {
  return selectedOf<SpeciesOption>(frameSpecies).species;
}

const AveragingPeriod& AnalysisTypeStep::period() const {
  return selectedOf<PeriodOption>(frameAveragingPeriod).period;
}

/// Leaves the periods that the species has limits for. If the selected one goes, the shortest of
/// the rest takes its place.
void AnalysisTypeStep::applySpeciesRule() {
  std::vector<PeriodOption*> allowed;
  for (PeriodOption* option : optionsOf<PeriodOption>(frameAveragingPeriod)) {
    if (species().limitsFor(option->period) != nullptr) {
      allowed.push_back(option);
    } else {
      DisableControl(*option);
    }
  }
  if (species().limitsFor(period()) == nullptr) allowed.front()->select();
}

void AnalysisTypeStep::DisableAnalysisSubFrames() {
  for (const ControlGroup* group :
       {&AreaControls, &EPAStandardControls, &SpeciesControls, &AveragingPeriodControls}) {
    disable(*group);
  }
}

void AnalysisTypeStep::cmdPrevious2_Click() { wizard_.goBackFrom(*this); }

void AnalysisTypeStep::cmdNext2_Click() {
  if (species().limitsFor(period()) == nullptr) {
    messageBox(&wizard_, species().refusal, kErrorTitle);
    return;
  }
  const std::optional<std::int32_t> others = otherGroups(txtNumOfOthers.text());
  if (!others) {
    return refuse(txtNumOfOthers,
                  "The number of OTHER source groups must be a whole number from 0 to 48.");
  }
  // Not ClearFieldHighlight: an emptied box is right here, and must not stay marked.
  txtNumOfOthers.setBackColor(colors::kWhite);
  basModule::analysisCase.GroupCount = *others + kFixedGroups;
  wizard_.goForwardFrom(*this);
}

bool AnalysisTypeStep::capture(AnalysisCase& into) {
  into.AreaClass = optClassI.selected() ? kClassI : kClassII;
  into.Standard = optNAAQS.selected() ? kNaaqs : kPsd;
  into.Species = species().name;
  into.AveragingHours = period().hours;
  return true;
}

void AnalysisTypeStep::fill(const AnalysisCase& from) {
  (from.AreaClass == kClassII ? optClassII : optClassI).select();
  (from.Standard == kPsd ? optPSD : optNAAQS).select();
  for (SpeciesOption* option : optionsOf<SpeciesOption>(frameSpecies)) {
    if (option->species.name == from.Species) option->select();
  }
  for (PeriodOption* option : optionsOf<PeriodOption>(frameAveragingPeriod)) {
    if (&option->period == &periodOf(from.AveragingHours)) option->select();
  }
  fillIn(txtNumOfOthers, std::to_string(from.GroupCount - kFixedGroups));
  // "Back to Top" may have left one open whose options were those of another species.
  closeSubFrames();
}

}  // namespace korventally
