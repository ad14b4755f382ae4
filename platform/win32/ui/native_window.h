#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>

#include "platform/container.h"
#include "platform/frame.h"
#include "platform/win32/ui/accessible_names.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/scroller.h"
#include "platform/win32/ui/stage.h"
#include "platform/win32/ui/tool_tips.h"
#include "platform/window.h"
#include "platform/window_view.h"

namespace korventally::win32 {

/// A window on the screen, with all its controls. Lives on, hidden, from the window's closing until
/// `Window::show` returns.
class NativeWindow : public WindowView {
 public:
  NativeWindow(Window& window, HWND owner);
  ~NativeWindow() override;

  /// The view of a window, or none if it is not being shown.
  static NativeWindow* of(const Window& window);
  /// The view that a window of Windows, or a child of it, belongs to; none for a foreign one.
  static NativeWindow* of(HWND any);

  HWND handle() const { return handle_; }
  Window& model() const { return window_; }
  bool closed() const { return stage_.closed(); }
  HWND handleOf(const Control& control) const;
  /// From now on the focus is to be seen, since the user moves it by keyboard.
  void showFocus();

  void refresh(const Control& control, Aspect aspect) override;
  bool setFocus(const Control& control) override;
  void announce(const Control& control) override;
  void close() override;

 private:
  static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM first, LPARAM second);
  HWND createFrame(HWND owner);
  /// A label may reach into its neighbour, but must not paint over it.
  void putBehindNeighbours(const Label& label);
  void createControls(const Container& container, HWND parent);
  std::unique_ptr<NativeControl> createControl(Control& control, HWND parent);

  LRESULT onMessage(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> handleInput(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> handleAppearance(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> handleSurroundings(UINT message, WPARAM first, LPARAM second);
  void paintGround(HDC dc);
  /// When the window appears, all that paints itself is put into one picture. Each control for
  /// itself asks the system for its part of the screen and of what is to be painted.
  void paintAtOnce();
  /// Paints what has changed since the last time.
  void paintSoiled();
  void paintControl(const Control& control, HDC picture, HDC screen);
  /// Text boxes are in no picture: Windows paints their edge and text, the window their ground. The
  /// one with the keyboard is left to Windows, which knows whether the caret shows.
  void paintTextBoxes(const Container& container, HDC screen);
  void paintTextBox(const Control& control, HDC screen);
  void contentsChanged(const Frame& frame);
  /// Leaves what lies over a control out of what is painted.
  void excludeCovered(const Control& control, HDC dc);
  /// Paints a control where it lies in the window.
  void paintInPlace(const Control& control, HDC dc);
  void paintAllInto(const Container& container, HDC dc);
  void paintInto(const Control& control, HDC dc);
  /// Puts the keyboard where the model has it.
  void restoreFocus();
  /// Gives the window the size of its contents, or of the work area if that is smaller, and lays
  /// the controls out. Centred, or else from the top-left corner as it is; moved as far as it takes
  /// to lie within the work area.
  void fit(bool centre);
  void placeControls();

  Window& window_;
  HWND owner_;
  HWND handle_;
  Stage stage_;
  Scroller scroller_;
  ToolTips toolTips_;
  AccessibleNames names_;
  std::map<const Control*, std::unique_ptr<NativeControl>> controls_;
  int lastId_;
  int placedFor_ = 0;  ///< the resolution that the controls have their places for
  bool appeared_ = false;
  bool minimised_ = false;
  bool hadFocus_ = false;  ///< one of the controls, at some time
};

}  // namespace korventally::win32
