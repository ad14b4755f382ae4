#include "wizard/wizard_step.h"

#include "platform/dialogs.h"

namespace korventally {

void WizardStep::refuse(TextBox& box, const std::string& message) {
  HighlightField(box);
  messageBox(&wizard, message, kErrorTitle);
  offerToCorrect(box);
}

void WizardStep::offerToCorrect(TextBox& box) {
  wizard.setFocus(box);
  box.selectAll();
}

}  // namespace korventally
