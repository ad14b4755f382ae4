#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

class Container;
class Window;

/// What of a control has changed, for the view that shows it.
enum class Aspect { kEnabled, kVisible, kText, kBackColor, kValue, kSelection, kTakesFiles };

/// A control of a window: its state and its events. Back ends only show that state and report what
/// the user does; setting state from code raises no event of the user's.
class Control {
 public:
  enum class Kind {
    kFrame,
    kLabel,
    kTextBox,
    kButton,
    kOptionButton,
    kCheckBox,
    kLine,
    kPictureBox
  };

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  Kind kind() const { return kind_; }
  /// The frame or window that holds this control; none for a window.
  Container* container() const { return container_; }
  /// The window at the end of the chain of containers.
  virtual Window& window();
  const Window& window() const { return const_cast<Control*>(this)->window(); }
  const Rect& place() const { return place_; }
  const Font& font() const { return font_; }

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  /// Whether a user can use it: enabled and visible, and so are all its containers.
  bool usable() const;

  OleColor backColor() const { return backColor_; }
  void setBackColor(OleColor color);
  OleColor foreColor() const { return foreColor_; }

  /// The text of a text box, the caption of everything else. UTF-8.
  const std::string& text() const { return text_; }
  void setText(std::string text);

  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string text) { toolTip_ = std::move(text); }
  /// What an assistive program reads where the caption is not enough; empty for "the caption". It
  /// is the given name, or what the label says without its colon, with the name in front of it and
  /// the unit behind it.
  std::string accessibleName() const;
  void setAccessibleName(std::string name) { accessibleName_ = std::move(name); }
  /// The label or frame whose caption names this control, and the label that shows its unit. Both
  /// stand in the same window; the name follows their captions. A view reads it, as the tool tip,
  /// when its window opens.
  void setLabel(const Control& label, const Control* unit = nullptr);

  std::function<void()> onClick;
  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;

 protected:
  Control(Kind kind, Container* container, Rect place, Font font);

  void changed(Aspect aspect);
  /// Runs a handler of the user's event, then moves the focus on if the control that had it can no
  /// longer be used.
  void raise(const std::function<void()>& handler);

  std::string text_;
  OleColor backColor_ = colors::kWhite;
  OleColor foreColor_ = colors::kWindowText;

 private:
  Kind kind_;
  Container* container_;
  Rect place_;
  Font font_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string toolTip_;
  std::string accessibleName_;
  const Control* label_ = nullptr;
  const Control* unit_ = nullptr;
};

}  // namespace korventally
