#include "platform/win32/ui/native_window.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/control.h"
#include "platform/frame.h"
#include "platform/geometry.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/dpi.h"
#include "platform/win32/ui/dropped_files.h"
#include "platform/win32/ui/menu_bar.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/native_lookup.h"
#include "platform/win32/ui/resource_ids.h"
#include "platform/win32/ui/session.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/window.h"

namespace korventally::win32 {
namespace {

constexpr wchar_t kClassName[] = L"KorvenTallyWindow";
constexpr DWORD kMainStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
constexpr DWORD kModalStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

std::vector<NativeWindow*>& views() {
  static std::vector<NativeWindow*> list;
  return list;
}

void registerClass(WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hIcon = LoadIconW(windowClass.hInstance, MAKEINTRESOURCEW(KORVENTALLY_PROGRAM_ICON));
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kClassName;
  RegisterClassExW(&windowClass);  // fails, and does no harm, from the second window on
}

/// Whether a control is another one or around it.
bool holds(const Control& control, const Control* other) {
  while (other != nullptr && other != &control) other = other->container();
  return other != nullptr;
}

bool overlap(const Rect& a, const Rect& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

}  // namespace

NativeWindow::NativeWindow(Window& window, HWND owner)
    : window_(window),
      owner_(owner),
      handle_(createFrame(owner)),
      stage_(handle_),
      scroller_(handle_),
      toolTips_(handle_),
      lastId_(kFirstControlId - 1) {
  createControls(window_, handle_);
  placedFor_ = stage_.dpi();
  fit(true);
  // Its place may be on a screen of another resolution, and nobody has heard of the change yet.
  if (const int dpi = dpiOf(handle_); dpi != stage_.dpi()) {
    stage_.setDpi(dpi);
    fit(true);
  }
  SendMessageW(handle_, WM_CHANGEUISTATE, UIS_INITIALIZE, 0);
  acceptFiles(handle_, window_.takesFiles());
  views().push_back(this);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  if (owner_ != nullptr) EnableWindow(owner_, FALSE);
  ShowWindow(handle_, SW_SHOWNORMAL);
  UpdateWindow(handle_);
}

NativeWindow::~NativeWindow() {
  if (!closed()) close();
  std::erase(views(), this);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  names_.clear();
  DestroyWindow(handle_);
}

HWND NativeWindow::createFrame(HWND owner) {
  registerClass(procedure);
  const DWORD style = owner == nullptr ? kMainStyle : kModalStyle;
  const DWORD extendedStyle = WS_EX_CONTROLPARENT | (owner == nullptr ? 0 : WS_EX_DLGMODALFRAME);
  RECT at{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};
  if (owner != nullptr) GetWindowRect(owner, &at);
  return CreateWindowExW(extendedStyle, kClassName, toWide(window_.text()).c_str(),
                         style | WS_CLIPCHILDREN, at.left, at.top, 0, 0, owner,
                         createMenuBar(window_), GetModuleHandleW(nullptr), nullptr);
}

void NativeWindow::putBehindNeighbours(const Label& label) {
  const auto& neighbours = label.container()->children();
  const bool overlaps =
      std::any_of(neighbours.begin(), neighbours.end(), [&](const Control* other) {
        return other->kind() != Control::Kind::kLabel && overlap(label.place(), other->place());
      });
  if (!overlaps) return;
  constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  SetWindowPos(handleOf(label), HWND_BOTTOM, 0, 0, 0, 0, kOrderOnly);
}

void NativeWindow::createControls(const Container& container, HWND parent) {
  for (Control* child : container.children()) {
    auto& control = controls_[child] = createControl(*child, parent);
    control->attach();
    toolTips_.add(control->handle(), child->toolTip());
    names_.add(control->handle(), child->accessibleName());
    if (child->kind() == Control::Kind::kFrame) {
      createControls(static_cast<const Frame&>(*child), control->handle());
    }
  }
  for (const Control* child : container.children()) {
    if (child->kind() == Control::Kind::kLabel) {
      putBehindNeighbours(static_cast<const Label&>(*child));
    }
  }
}

std::unique_ptr<NativeControl> NativeWindow::createControl(Control& control, HWND parent) {
  const Site site{stage_, parent, ++lastId_};
  switch (control.kind()) {
    case Control::Kind::kFrame:
      return makeFrame(static_cast<Frame&>(control), site);
    case Control::Kind::kLabel:
      return makeLabel(static_cast<Label&>(control), site);
    case Control::Kind::kTextBox:
      return makeTextBox(static_cast<TextBox&>(control), site);
    case Control::Kind::kButton:
      return makeButton(static_cast<Button&>(control), site);
    case Control::Kind::kOptionButton:
      return makeOptionButton(static_cast<OptionButton&>(control), site);
    case Control::Kind::kCheckBox:
      return makeCheckBox(static_cast<CheckBox&>(control), site);
    case Control::Kind::kLine:
      return makeLine(static_cast<Line&>(control), site);
    case Control::Kind::kPictureBox:
      return makePictureBox(static_cast<PictureBox&>(control), site);
  }
  return nullptr;
}

NativeWindow* NativeWindow::of(const Window& window) {
  const auto found = std::find_if(views().begin(), views().end(), [&](const NativeWindow* view) {
    return &view->window_ == &window;
  });
  return found == views().end() ? nullptr : *found;
}

NativeWindow* NativeWindow::of(HWND any) {
  HWND root = GetAncestor(any, GA_ROOT);
  const auto found = std::find_if(views().begin(), views().end(),
                                  [&](const NativeWindow* view) { return view->handle_ == root; });
  return found == views().end() ? nullptr : *found;
}

HWND NativeWindow::handleOf(const Control& control) const {
  if (&control == &window_) return handle_;
  const auto found = controls_.find(&control);
  return found == controls_.end() ? nullptr : found->second->handle();
}

void NativeWindow::refresh(const Control& control, Aspect aspect) {
  const auto found = controls_.find(&control);
  if (found == controls_.end()) {
    if (aspect == Aspect::kTakesFiles) acceptFiles(handle_, window_.takesFiles());
    if (aspect == Aspect::kText) SetWindowTextW(handle_, toWide(window_.text()).c_str());
    return;
  }
  found->second->refresh(aspect);
  if (aspect == Aspect::kEnabled && control.kind() == Control::Kind::kFrame) {
    contentsChanged(static_cast<const Frame&>(control));
  }
  // Disabling the control that has the keyboard leaves the keyboard with nobody, or with a control
  // that does not listen.
  const bool movesKeyboard = aspect == Aspect::kEnabled || aspect == Aspect::kVisible;
  if (movesKeyboard && holds(control, window_.focused())) restoreFocus();
}

/// What lies in a frame looks as usable as the frame.
void NativeWindow::contentsChanged(const Frame& frame) {
  for (const Control* child : frame.children()) {
    controls_.at(child)->lookChanged();
    if (child->kind() == Control::Kind::kFrame) contentsChanged(static_cast<const Frame&>(*child));
  }
}

bool NativeWindow::setFocus(const Control& control) {
  if (GetActiveWindow() != handle_) return false;
  HWND target = handleOf(control);
  // Before the focus arrives, because what it brings about may prepare the text for typing.
  if (control.kind() == Control::Kind::kTextBox) SendMessageW(target, EM_SETSEL, 0, -1);
  // Nothing is reported when the keyboard is there already.
  const bool moves = GetFocus() != target;
  SetFocus(target);
  return moves;
}

void NativeWindow::restoreFocus() {
  if (closed() || GetActiveWindow() != handle_) return;
  const Control* focused = window_.focused();
  HWND target = focused != nullptr && focused->usable() ? handleOf(*focused) : handle_;
  if (GetFocus() != target) SetFocus(target);
}

void NativeWindow::showFocus() {
  SendMessageW(handle_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

void NativeWindow::announce(const Control& control) { names_.announce(handleOf(control)); }

void NativeWindow::close() {
  stage_.close();
  if (owner_ == nullptr) watchSession();
  // The owner comes first: hiding the active window while its owner is disabled would activate
  // another program.
  if (owner_ != nullptr) {
    EnableWindow(owner_, TRUE);
    if (GetActiveWindow() == handle_) SetActiveWindow(owner_);
  }
  ShowWindow(handle_, SW_HIDE);
}

HWND nativeHandle(const Control& control) {
  const NativeWindow* view = NativeWindow::of(control.window());
  return view == nullptr || view->closed() ? nullptr : view->handleOf(control);
}

}  // namespace korventally::win32
