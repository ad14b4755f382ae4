#pragma once

#include <string>
#include <utility>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/geometry.h"
#include "platform/text_box.h"
#include "wizard/step_host.h"

namespace korventally {

/// The frame around everything that a step asks for.
class StepFrame : public Frame {
 public:
  static constexpr Font kCaptionFont{"Arial", 11.25, true};

  StepFrame(Container& window, Rect place, std::string caption)
      : Frame(window, place, std::move(caption), kCaptionFont, colors::kNavy) {}
};

/// The column on the right of a step that holds its "PREVIOUS" and "NEXT". It has no caption and is
/// never disabled: each of its buttons is usable when it is itself enabled.
class NavigationColumn : public Frame {
 public:
  NavigationColumn(Container& window, Rect place)
      : Frame(window, place, {}, fonts::kBold, colors::kWhite) {}
};

/// One step of the wizard: its controls, its handlers, its part of the case, and its two control
/// groups, the controls and the text fields that are switched when the step opens or closes. Which
/// step comes before and after it, only the window knows.
class WizardStep {
 public:
  virtual ~WizardStep() = default;
  WizardStep(const WizardStep&) = delete;
  WizardStep& operator=(const WizardStep&) = delete;

  virtual const ControlGroup& controls() const = 0;
  virtual const FieldGroup& fields() const = 0;
  virtual const Frame& frame() const = 0;
  bool isOpen() const { return frame().enabled(); }

  /// Where Tab stops on the way forward through the step, and on the way back.
  virtual std::vector<Control*> tabStops() = 0;
  virtual std::vector<Control*> tabStopsBack() { return {}; }

  /// How the user goes from one step to another.
  enum class Way { kForward, kBack, kToTop };
  /// What else opening and closing the step mean, after its two groups have been switched.
  virtual void opened(Way) {}
  virtual void closed(Way) {}

  /// Copies what the step has collected into the case, of which all earlier steps have filled their
  /// parts. False when no case can be run with it: the user has been told why, or has said no.
  virtual bool capture(AnalysisCase& into) = 0;

  /// The way back: puts the step's part of a case into its controls, as if the user had typed it
  /// and nothing before it. The case is one that `capture` can make, but its texts are not checked,
  /// and area class and standard may be empty.
  virtual void fill(const AnalysisCase& from) = 0;

 protected:
  explicit WizardStep(StepHost& host) : wizard_(host) {}

  /// Marks the box, says what is wrong and puts the focus into the box.
  void refuse(TextBox& box, const std::string& message);

  /// Puts a text into a box and takes the mark of an earlier one that was refused.
  static void fillIn(TextBox& box, const std::string& text);

  /// Puts the focus into the box with its text selected, for another one to be typed.
  void offerToCorrect(TextBox& box);

  StepHost& wizard_;
};

}  // namespace korventally
