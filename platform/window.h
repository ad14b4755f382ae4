#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/container.h"
#include "platform/control.h"
#include "platform/geometry.h"
#include "platform/menu.h"
#include "platform/window_view.h"

namespace korventally {

/// A window that is not resizable: its controls, its menus, and the rules of the focus. A form
/// derives from it and declares its controls as members.
class Window : public Container {
 public:
  Window(std::string caption, Size clientSize);
  ~Window() override;

  Window& window() override { return *this; }
  const std::vector<Menu>& menus() const { return menus_; }
  const std::vector<Control*>& tabOrder() const { return tabOrder_; }

  /// Loads and shows the window and returns when it has been closed. With an owner it is modal over
  /// the owner. Each showing loads afresh.
  void show(Window* owner = nullptr);
  bool isOpen() const { return open_; }
  /// Closes the window without asking.
  void unload();
  /// The user wants the window closed; `queryUnload` may refuse, and so does a modal window over
  /// this one.
  void requestClose();
  /// Closes every open window, the youngest first, without asking.
  static void unloadAll();
  /// The open windows, oldest first.
  static const std::vector<Window*>& openWindows();

  /// The control that has the keyboard while this window is active; none before the first showing.
  Control* focused() const { return focused_; }
  /// Moves the focus from code, with the events of such a move. Does nothing when the control is
  /// not usable.
  void setFocus(Control& control);
  /// Moves the focus on as the Tab key does.
  void moveFocus(bool forward = true);
  /// Moves the focus on when the control that has it can no longer be used: to what the form
  /// prefers, or to the next in the tab order.
  void settleFocus();
  /// The view reports where the focus now is: raises LostFocus of the old control and GotFocus of
  /// the new one. Leaving for another window is no move.
  void focusMovedTo(Control& control);

  /// Whether the user can drop files on the window, anywhere but on a box that keeps them.
  bool takesFiles() const { return takesFiles_; }
  /// The user has dropped files or folders there: their full paths.
  void dropFiles(const std::vector<std::string>& paths);

  /// Whether Esc closes the window, as the close box does.
  virtual bool closesOnEscape() const { return false; }
  /// Why the session should wait before it ends, one sentence; empty when nothing is in progress.
  virtual std::string sessionEndObjection() const { return {}; }
  /// The session ends, whatever the objection: leave nothing behind, at once.
  virtual void sessionEnds() {}

  /// Called by the window's own controls: the view shows what has changed.
  void controlChanged(const Control& control, Aspect aspect);
  /// Has assistive programs read out the control's text, once, wherever the focus is. Does nothing
  /// while the window is not open.
  void announce(const Control& control);

 protected:
  virtual void Form_Load() {}
  /// The window is on the screen and usable: a message about its start stands over it.
  virtual void shown() {}
  /// One file or more, while the window takes files.
  virtual void filesDropped(const std::vector<std::string>& /*paths*/) {}
  /// Whether the user may close the window now.
  virtual bool queryUnload() { return true; }
  virtual void Form_Unload() {}
  /// Where the focus should go when the control that has it can no longer be used; none for the
  /// next in the tab order.
  virtual Control* preferredFocus() const { return nullptr; }
  /// Whether Tab stops at the control now.
  static bool isTabStop(const Control& control);

  void setTakesFiles(bool takes);
  void setMenus(std::vector<Menu> menus) { menus_ = std::move(menus); }
  /// The order in which Tab visits the controls, round its end. Of a group of option buttons it
  /// visits one: see `OptionButton::standsForGroup`.
  void setTabOrder(std::vector<Control*> order) { tabOrder_ = std::move(order); }

 private:
  Control* nextInTabOrder(const Control* from, bool forward) const;

  std::vector<Menu> menus_;
  std::vector<Control*> tabOrder_;
  std::unique_ptr<WindowView> view_;
  Control* focused_ = nullptr;
  bool open_ = false;
  bool takesFiles_ = false;
};

}  // namespace korventally
