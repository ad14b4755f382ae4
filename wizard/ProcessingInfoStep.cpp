#include "wizard/ProcessingInfoStep.h"

#include <utility>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally {
namespace {

constexpr const char* kNoPlaceholder = "";
constexpr std::size_t kYearDigits = 4;

/// Makes a lone digit two.
void PadTwoDigits(TextBox& box) {
  if (characterCount(box.text()) == 1) box.setText("0" + box.text());
}

}  // namespace

ProcessingInfoStep::ProcessingInfoStep(frmKORVENTALLY& owner)
    : WizardStep(owner),
      frameProcessingInfo(owner, {120, 5880, 11295, 2535},
                          "PROCESSING INFORMATION:", fonts::kStepCaption, colors::kNavy),
      Frame6(owner, {11640, 5880, 1455, 2535}) {
  txtReceptorDATFile.setTakesPath();
  txtReceptorDATFile.setAccessibleName("File with Receptors to be Processed");
  txtYear.setAccessibleName("Year");
  txtMonth.setAccessibleName("Month");
  txtDay.setAccessibleName("Day");
  txtHour.setAccessibleName("Hour");
  txtRunLength.setAccessibleName("Run Length, hours");
  bindHandlers();
  DisableStep(ProcessingInfoControls, ProcessingInfoFields);
}

void ProcessingInfoStep::bindHandlers() {
  const std::pair<TextBox*, const char*> boxes[] = {{&txtYear, "YYYY"},
                                                    {&txtMonth, "MM"},
                                                    {&txtDay, "DD"},
                                                    {&txtHour, "HH"},
                                                    {&txtRunLength, kNoPlaceholder}};
  for (const auto& entry : boxes) {
    const auto clearPlaceholder = [box = entry.first, placeholder = entry.second] {
      if (box->text() == placeholder) box->setText("");
    };
    entry.first->onGotFocus = clearPlaceholder;
    entry.first->onKeyPress = [this, clearPlaceholder](std::int16_t& keyCode) {
      FilterDigitKey(keyCode);
      MoveOnAtEnter(wizard, keyCode);
      // A refused box shows its placeholder although it has the focus.
      if (keyCode != 0) clearPlaceholder();
    };
  }
  for (TextBox* box : {&txtMonth, &txtDay, &txtHour}) {
    box->onLostFocus = [box] { PadTwoDigits(*box); };
  }
  cmdBrowseReceptorDAT.onClick = [this] { cmdBrowseReceptorDAT_Click(); };
  cmdPrevious4.onClick = [this] { cmdPrevious4_Click(); };
  cmdNext4.onClick = [this] { cmdNext4_Click(); };
}

void ProcessingInfoStep::cmdBrowseReceptorDAT_Click() {
  txtReceptorDATFile.setText(
      wizard.askForFile("Receptor DAT File (*.dat) | *.dat; |"
                        "All Files (*.*) | *.*"));
  ClearFieldHighlight(txtReceptorDATFile);
}

void ProcessingInfoStep::cmdPrevious4_Click() {
  switchTo(wizard.sourceGroups);
  wizard.sourceGroups.reopenPagingButtons();
}

void ProcessingInfoStep::cmdNext4_Click() {
  const bool passed = checkReceptorFile() && checkYear() &&
                      checkFilledIn(txtMonth, "MM", "Please enter a Month for the start time.") &&
                      checkFilledIn(txtDay, "DD", "Please enter a Day for the start time.") &&
                      checkFilledIn(txtHour, "HH", "Please enter an Hour for the start time.") &&
                      checkFilledIn(txtRunLength, kNoPlaceholder, "Please enter a Run Length.");
  if (passed) switchTo(wizard.outputFile);
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
  if (txtYear.isEmpty() || txtYear.text() == "YYYY") {
    refuse(txtYear, "Please enter a Year for the start time.");
    return false;
  }
  if (characterCount(txtYear.text()) != kYearDigits) {
    refuse(txtYear, "The Year must be in the format YYYY.");
    return false;
  }
  ClearFieldHighlight(txtYear);
  return true;
}

bool ProcessingInfoStep::checkFilledIn(TextBox& box, const char* placeholder,
                                       const std::string& message) {
  if (box.isEmpty() || box.text() == placeholder) {
    refuse(box, message);
    return false;
  }
  ClearFieldHighlight(box);
  return true;
}

}  // namespace korventally
