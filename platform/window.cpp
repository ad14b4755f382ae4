#include "platform/window.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/container.h"
#include "platform/control.h"
#include "platform/events.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/guarded.h"
#include "platform/option_button.h"
#include "platform/window_view.h"

namespace korventally {
namespace {

std::vector<Window*>& mutableOpenWindows() {
  static std::vector<Window*> windows;
  return windows;
}

}  // namespace

Window::Window(std::string caption, Size clientSize)
    : Container(Kind::kFrame, nullptr, {0, 0, clientSize.width, clientSize.height},
                fonts::kDefault) {
  text_ = std::move(caption);
}

Window::~Window() { unload(); }

const std::vector<Window*>& Window::openWindows() { return mutableOpenWindows(); }

void Window::show(Window* owner) {
  focused_ = nullptr;
  Form_Load();
  open_ = true;
  mutableOpenWindows().push_back(this);
  view_ = createWindowView(*this, owner);
  if (open_) moveFocus();
  if (open_) runGuarded(this, [this] { shown(); });
  runEventsWhile([this] { return open_; });
  view_.reset();
}

void Window::unload() {
  if (!open_) return;
  Form_Unload();
  open_ = false;
  std::erase(mutableOpenWindows(), this);
  // None yet when a message has closed the window while it was being made.
  if (view_) view_->close();
}

void Window::requestClose() {
  // What lies under a modal window cannot be closed, whoever asks.
  if (!open_ || openWindows().back() != this) return;
  if (queryUnload()) unload();
}

void Window::unloadAll() {
  while (!openWindows().empty()) openWindows().back()->unload();
}

void Window::setFocus(Control& control) {
  if (!control.usable()) return;
  // A view that gives the control the keyboard has reported it already, and what followed from it.
  const bool moved = open_ && view_ && view_->setFocus(control);
  if (!moved) focusMovedTo(control);
}

void Window::moveFocus(bool forward) {
  if (Control* next = nextInTabOrder(focused_, forward)) setFocus(*next);
}

void Window::settleFocus() {
  if (!open_ || focused_ == nullptr || focused_->usable()) return;
  if (Control* preferred = preferredFocus()) {
    setFocus(*preferred);
  } else {
    moveFocus();
  }
}

void Window::setTakesFiles(bool takes) {
  if (takesFiles_ == takes) return;
  takesFiles_ = takes;
  changed(Aspect::kTakesFiles);
}

void Window::dropFiles(const std::vector<std::string>& paths) {
  if (!takesFiles_ || paths.empty()) return;
  runGuarded(this, [&] { filesDropped(paths); });
}

bool Window::isTabStop(const Control& control) {
  if (!control.usable()) return false;
  if (control.kind() != Control::Kind::kOptionButton) return true;
  return static_cast<const OptionButton&>(control).standsForGroup();
}

void Window::focusMovedTo(Control& control) {
  if (&control == focused_) return;
  Control* left = std::exchange(focused_, &control);
  if (left != nullptr) runGuarded(this, left->onLostFocus);
  // Unless leaving has led elsewhere.
  if (focused_ == &control) runGuarded(this, control.onGotFocus);
}

void Window::controlChanged(const Control& control, Aspect aspect) {
  if (open_ && view_) view_->refresh(control, aspect);
}

void Window::announce(const Control& control) {
  if (open_ && view_) view_->announce(control);
}

Control* Window::nextInTabOrder(const Control* from, bool forward) const {
  std::vector<Control*> order = tabOrder_;
  if (!forward) std::reverse(order.begin(), order.end());
  const auto at = std::find(order.begin(), order.end(), from);
  if (at != order.end()) std::rotate(order.begin(), at + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(),
                                 [](const Control* control) { return isTabStop(*control); });
  return next == order.end() ? nullptr : *next;
}

}  // namespace korventally
