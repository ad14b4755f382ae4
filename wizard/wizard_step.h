#pragma once

#include "case/ModUtilities.h"
#include "platform/button.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/text_box.h"

namespace korventally {

class frmKORVENTALLY;

/// The column on the right of a step that holds its "PREVIOUS" and "NEXT". It has no caption and is
/// never disabled: each of its buttons is usable when it is itself enabled.
class NavigationColumn : public Frame {
 public:
  NavigationColumn(Container& window, Rect place)
      : Frame(window, place, {}, fonts::kBold, colors::kWhite) {}
};

/// One step of the wizard: its controls, its handlers and its two control groups, the controls and
/// the text fields that are switched when the step opens or closes.
class WizardStep {
 public:
  virtual ~WizardStep() = default;
  WizardStep(const WizardStep&) = delete;
  WizardStep& operator=(const WizardStep&) = delete;

  virtual const ControlGroup& controls() const = 0;
  virtual const FieldGroup& fields() const = 0;
  virtual const Frame& frame() const = 0;
  bool isOpen() const { return frame().enabled(); }
  /// Closes this step and opens another one.
  void switchTo(WizardStep& next);

 protected:
  explicit WizardStep(frmKORVENTALLY& owner) : wizard(owner) {}

  /// Marks the box, says what is wrong and puts the focus into the box.
  void refuse(TextBox& box, const std::string& message);

  /// Puts the focus into the box with its text selected, for another one to be typed.
  void offerToCorrect(TextBox& box);

  frmKORVENTALLY& wizard;
};

}  // namespace korventally
