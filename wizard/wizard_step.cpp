#include "wizard/wizard_step.h"

#include <string>

#include "case/ModUtilities.h"
#include "platform/color.h"
#include "platform/dialogs.h"
#include "platform/text_box.h"

namespace korventally {

void WizardStep::refuse(TextBox& box, const std::string& message) {
  HighlightField(box);
  messageBox(&wizard_, message, kErrorTitle);
  offerToCorrect(box);
}

void WizardStep::fillIn(TextBox& box, const std::string& text) {
  box.setText(text);
  box.setBackColor(box.enabled() ? colors::kWhite : colors::kButtonFace);
}

void WizardStep::offerToCorrect(TextBox& box) {
  wizard_.setFocus(box);
  box.selectAll();
}

}  // namespace korventally
