#include "wizard/wizard_step.h"

#include "platform/dialogs.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally {

void WizardStep::switchTo(WizardStep& next) {
  SwitchStep(controls(), fields(), next.controls(), next.fields());
}

void WizardStep::refuse(TextBox& box, const std::string& message) {
  HighlightField(box);
  messageBox(&wizard, message, kErrorTitle);
  offerToCorrect(box);
}

void WizardStep::offerToCorrect(TextBox& box) {
  // The focus empties a box of its placeholder when the person goes there, which nobody has done.
  const std::string text = box.text();
  wizard.setFocus(box);
  box.setText(text);
  box.selectAll();
}

}  // namespace korventally
