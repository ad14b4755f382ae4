#include "wizard/processing_info_step.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "limits/limits.h"
#include "limits/species.h"
#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"
#include "wizard/wizard_step.h"

namespace korventally {
namespace {

constexpr std::size_t kYearDigits = 4;
constexpr const char* kYearFormat = "The Year must be in the format YYYY.";

/// Makes a lone digit two.
void PadTwoDigits(TextBox& box) {
  if (characterCount(box.text()) == 1) box.setText("0" + box.text());
}

bool allDigits(const std::string& text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

ProcessingInfoStep::ProcessingInfoStep(StepHost& host) : WizardStep(host) {
  txtReceptorDATFile.setTakesPath();
  txtReceptorDATFile.setLabel(frameReceptorDATFormat);
  txtYear.setLabel(lblYear);
  txtMonth.setLabel(lblMonth);
  txtDay.setLabel(lblDay);
  txtHour.setLabel(lblHour);
  txtRunLength.setLabel(lblRunLength, &lblHours);
  bindHandlers();
}

void ProcessingInfoStep::bindHandlers() {
  txtYear.onGotFocus = [this] { txtYear_GotFocus(); };
  txtMonth.onGotFocus = [this] { txtMonth_GotFocus(); };
  txtDay.onGotFocus = [this] { txtDay_GotFocus(); };
  txtHour.onGotFocus = [this] { txtHour_GotFocus(); };
  txtMonth.onLostFocus = [this] { txtMonth_LostFocus(); };
  txtDay.onLostFocus = [this] { txtDay_LostFocus(); };
  txtHour.onLostFocus = [this] { txtHour_LostFocus(); };
  txtYear.onKeyPress = [this](std::int16_t& keyCode) { txtYear_KeyPress(keyCode); };
  txtMonth.onKeyPress = [this](std::int16_t& keyCode) { txtMonth_KeyPress(keyCode); };
  txtDay.onKeyPress = [this](std::int16_t& keyCode) { txtDay_KeyPress(keyCode); };
  txtHour.onKeyPress = [this](std::int16_t& keyCode) { txtHour_KeyPress(keyCode); };
  txtRunLength.onKeyPress = [this](std::int16_t& keyCode) { txtRunLength_KeyPress(keyCode); };
  cmdBrowseReceptorDAT.onClick = [this] { cmdBrowseReceptorDAT_Click(); };
  cmdPrevious4.onClick = [this] { cmdPrevious4_Click(); };
  cmdNext4.onClick = [this] { cmdNext4_Click(); };
}

void ProcessingInfoStep::txtYear_GotFocus() { txtYear.dropPlaceholder(); }
void ProcessingInfoStep::txtMonth_GotFocus() { txtMonth.dropPlaceholder(); }
void ProcessingInfoStep::txtDay_GotFocus() { txtDay.dropPlaceholder(); }
void ProcessingInfoStep::txtHour_GotFocus() { txtHour.dropPlaceholder(); }

void ProcessingInfoStep::txtMonth_LostFocus() { PadTwoDigits(txtMonth); }
void ProcessingInfoStep::txtDay_LostFocus() { PadTwoDigits(txtDay); }
void ProcessingInfoStep::txtHour_LostFocus() { PadTwoDigits(txtHour); }

void ProcessingInfoStep::txtYear_KeyPress(std::int16_t& keyCode) { takeDigitsOnly(keyCode); }
void ProcessingInfoStep::txtMonth_KeyPress(std::int16_t& keyCode) { takeDigitsOnly(keyCode); }
void ProcessingInfoStep::txtDay_KeyPress(std::int16_t& keyCode) { takeDigitsOnly(keyCode); }
void ProcessingInfoStep::txtHour_KeyPress(std::int16_t& keyCode) { takeDigitsOnly(keyCode); }
void ProcessingInfoStep::txtRunLength_KeyPress(std::int16_t& keyCode) { takeDigitsOnly(keyCode); }

void ProcessingInfoStep::takeDigitsOnly(std::int16_t& keyCode) {
  FilterDigitKey(keyCode);
  moveOnAtEnter(wizard_, keyCode);
}

std::vector<Control*> ProcessingInfoStep::tabStops() {
  return {&txtReceptorDATFile,
          &cmdBrowseReceptorDAT,
          &optReceptor_TOLVREN,
          &optReceptor_Generic,
          &txtYear,
          &txtMonth,
          &txtDay,
          &txtHour,
          &txtRunLength,
          &optRank1_Include,
          &optRank1_Exclude,
          &cmdNext4};
}

void ProcessingInfoStep::cmdBrowseReceptorDAT_Click() {
  txtReceptorDATFile.setText(
      wizard_.askForFile("Receptor DAT File (*.dat) | *.dat; |"
                         "All Files (*.*) | *.*"));
  ClearFieldHighlight(txtReceptorDATFile);
}

void ProcessingInfoStep::cmdPrevious4_Click() { wizard_.goBackFrom(*this); }

void ProcessingInfoStep::cmdNext4_Click() {
  const bool passed = checkReceptorFile() && checkYear() &&
                      checkFilledIn(txtMonth, "Please enter a Month for the start time.") &&
                      checkFilledIn(txtDay, "Please enter a Day for the start time.") &&
                      checkFilledIn(txtHour, "Please enter an Hour for the start time.") &&
                      checkFilledIn(txtRunLength, "Please enter a Run Length.");
  if (passed) wizard_.goForwardFrom(*this);
}

bool ProcessingInfoStep::checkReceptorFile() {
  if (txtReceptorDATFile.isEmpty()) {
    refuse(txtReceptorDATFile, "Please select an input Receptor Data file.");
    return false;
  }
  if (!fileExists(txtReceptorDATFile.text())) {
    refuse(txtReceptorDATFile, "Selected input Receptor Data file can not be located.");
    return false;
  }
  ClearFieldHighlight(txtReceptorDATFile);
  return true;
}

bool ProcessingInfoStep::checkYear() {
  if (!txtYear.isFilledIn()) {
    refuse(txtYear, "Please enter a Year for the start time.");
    return false;
  }
  if (characterCount(txtYear.text()) != kYearDigits) {
    refuse(txtYear, kYearFormat);
    return false;
  }
  ClearFieldHighlight(txtYear);
  return true;
}

bool ProcessingInfoStep::checkFilledIn(TextBox& box, const std::string& message) {
  if (!box.isFilledIn()) {
    refuse(box, message);
    return false;
  }
  ClearFieldHighlight(box);
  return true;
}

bool ProcessingInfoStep::capture(AnalysisCase& into) {
  const bool annual = into.AveragingHours == kAnnual.hours;
  // Digits are all that can be typed, but anything can be pasted.
  if (annual && !allDigits(txtYear.text())) return refuseAnnualYear();
  if (annual) into.AveragingHours = annualHours(txtYear.text());
  into.ReceptorFormat = optReceptor_TOLVREN.selected() ? kTolvrenFormat : kGenericFormat;
  into.Rank1Flag = optRank1_Exclude.selected() ? kRank1Excluded : kRank1Included;
  into.ReceptorFile = txtReceptorDATFile.text();
  into.StartYear = txtYear.text();
  into.StartMonth = txtMonth.text();
  into.StartDay = txtDay.text();
  into.StartHour = txtHour.text();
  into.RunLength = txtRunLength.text();
  return true;
}

void ProcessingInfoStep::fill(const AnalysisCase& from) {
  (from.ReceptorFormat == kTolvrenFormat ? optReceptor_TOLVREN : optReceptor_Generic).select();
  (from.Rank1Flag == kRank1Excluded ? optRank1_Exclude : optRank1_Include).select();
  fillIn(txtReceptorDATFile, from.ReceptorFile);
  fillIn(txtYear, from.StartYear);
  fillIn(txtMonth, from.StartMonth);
  fillIn(txtDay, from.StartDay);
  fillIn(txtHour, from.StartHour);
  fillIn(txtRunLength, from.RunLength);
}

/// The step is closed, so the mark takes the colour that turns yellow when the step opens again.
bool ProcessingInfoStep::refuseAnnualYear() {
  HighlightField(txtYear);
  DisableField(txtYear);
  messageBox(&wizard_, kYearFormat, kErrorTitle);
  return false;
}

}  // namespace korventally
