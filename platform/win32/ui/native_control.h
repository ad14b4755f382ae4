#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>

#include "platform/control.h"
#include "platform/win32/ui/stage.h"

namespace korventally {
class Button;
class CheckBox;
class Frame;
class Label;
class Line;
class OptionButton;
class PictureBox;
class TextBox;
}  // namespace korventally

namespace korventally::win32 {

/// Where a control is to stand.
struct Site {
  Stage& stage;
  HWND parent;
  int id;
};

/// A control of the model as a child window of one of Windows' classes. Shows the model and
/// reports what the user does; what the user sees of it is the model's state. The window is
/// destroyed with its parent.
class NativeControl {
 public:
  virtual ~NativeControl() = default;
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  HWND handle() const { return handle_; }
  Control& model() const { return model_; }
  /// The control behind a child window; none for a window of somebody else's.
  static NativeControl* of(HWND window);

  /// Begins to see the window's messages. Called once, by whoever made the control.
  void attach();
  /// Puts the window where the model says, seen from `origin` in its parent, in its font. It is
  /// made in its place, seen from the parent's corner.
  void place(POINT origin);
  /// Shows one aspect of the model.
  virtual void refresh(Aspect aspect);
  /// What the window shows is no longer what it should. It is painted with all others that have
  /// changed by then.
  void lookChanged() { stage_.soil(model_); }
  /// Paints the control with its top-left corner at the origin. Leaves its font selected: whoever
  /// has many painted saves and restores the device context once around all of them, because each
  /// change of font takes time. A text box paints nothing here.
  virtual void paintOn(HDC /*dc*/) {}

  /// What Windows asks or tells a control's parent: WM_COMMAND, WM_NOTIFY and WM_CTLCOLOR....
  /// Whoever is a parent hands its messages on here; none when the message is not a child's.
  static std::optional<LRESULT> reflect(UINT message, WPARAM first, LPARAM second);

 protected:
  /// `visible` is the style of a visible model's window: none for one that shows itself when it has
  /// been attached.
  NativeControl(Control& model, const Site& site, const wchar_t* windowClass, DWORD style,
                DWORD extendedStyle = 0, DWORD visible = WS_VISIBLE);

  /// The window's messages are seen from here on: shows what its creation did not.
  virtual void attached();
  /// A message of the window's own.
  virtual LRESULT onMessage(UINT message, WPARAM first, LPARAM second);
  /// The user did something that the window's class reports by a code, such as BN_CLICKED.
  virtual void command(WORD /*code*/) {}
  virtual std::optional<LRESULT> notify(const NMHDR& /*header*/) { return std::nullopt; }
  /// Chooses the colours of text and ground.
  virtual HBRUSH color(HDC dc);
  /// Whether the model's state shows the window at all.
  virtual bool shown() const { return model_.visible(); }

  LRESULT byDefault(UINT message, WPARAM first, LPARAM second);
  Stage& stage() const { return stage_; }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  void takeFont();
  void focusArrived();

  Control& model_;
  Stage& stage_;
  HWND handle_;
  WNDPROC classProcedure_ = nullptr;
};

/// The native control for one of the model's; one function, and one file, per kind.
std::unique_ptr<NativeControl> makeFrame(Frame& model, const Site& site);
std::unique_ptr<NativeControl> makeLabel(Label& model, const Site& site);
std::unique_ptr<NativeControl> makeTextBox(TextBox& model, const Site& site);
std::unique_ptr<NativeControl> makeButton(Button& model, const Site& site);
std::unique_ptr<NativeControl> makeOptionButton(OptionButton& model, const Site& site);
std::unique_ptr<NativeControl> makeCheckBox(CheckBox& model, const Site& site);
std::unique_ptr<NativeControl> makeLine(Line& model, const Site& site);
std::unique_ptr<NativeControl> makePictureBox(PictureBox& model, const Site& site);

/// Sent to the window that holds a control which has got the focus, to bring it into
/// view. The second parameter is the control's window.
inline constexpr UINT kFocusArrived = WM_APP + 1;
/// Posted to the window when some of its controls have to be painted.
inline constexpr UINT kPaintSoiled = WM_APP + 3;
/// Sent to the window that holds a control of which an assistive program wants to know more.
inline constexpr UINT kNamesWanted = WM_APP + 2;

}  // namespace korventally::win32
