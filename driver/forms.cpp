#include "driver/forms.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include "driver/input.h"
#include "driver/landmarks.h"

namespace korventally::driver {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr std::array kColumnTops = {120, 1080, 3120, 5880, 8520};
constexpr int kColumnLeft = 11640;
constexpr POINT kFirstFramePlace{120, 120};

int dotsPerInch() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

int pixels(int twips) { return MulDiv(twips, dotsPerInch(), kTwipsPerInch); }

/// At 96 dots per inch every place is a whole number of pixels, or its rounding; at others the
/// edges and the sizes round on their own.
bool isAt(LONG actual, int twips) {
  const int slack = dotsPerInch() == USER_DEFAULT_SCREEN_DPI ? 0 : 1;
  return std::abs(static_cast<int>(actual) - pixels(twips)) <= slack;
}

RECT placeInParent(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

bool standsAt(HWND window, const Twips& at, POINT origin) {
  RECT place = placeInParent(window);
  OffsetRect(&place, -origin.x, -origin.y);
  return isAt(place.left, at.left) && isAt(place.top, at.top) &&
         isAt(place.right - place.left, at.width) && isAt(place.bottom - place.top, at.height);
}

bool isFrame(HWND window) {
  return classOf(window) == L"button" &&
         (GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

template <typename Condition>
HWND firstBelow(HWND parent, const Condition& matches) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (matches(child)) return child;
    if (HWND deeper = firstBelow(child, matches)) return deeper;
  }
  return nullptr;
}

HWND captionedFrame(HWND window, std::wstring_view caption) {
  return firstBelow(
      window, [&](HWND child) { return isFrame(child) && textOf(child).starts_with(caption); });
}

}  // namespace

LRESULT ask(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, 5000, &answer);
  return static_cast<LRESULT>(answer);
}

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::wstring classOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  CharLowerW(name.data());
  return name.data();
}

bool isUsable(HWND window) {
  if (!IsWindowVisible(window)) return false;
  for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
    if (!IsWindowEnabled(at)) return false;
  }
  return true;
}

void clickOn(HWND window) {
  RECT area;
  GetWindowRect(window, &area);
  clickAt({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

HWND focusIn(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
  return info.hwndFocus;
}

/// Where the window's top left corner has been scrolled to; the wizard's first frame tells.
POINT Form::origin() const {
  HWND window = captionedFrame(window_, kOne);
  if (window == nullptr) return {0, 0};
  const RECT place = placeInParent(window);
  return {place.left - pixels(kFirstFramePlace.x), place.top - pixels(kFirstFramePlace.y)};
}

HWND Form::frame(std::wstring_view name) const {
  if (name.empty()) return window_;
  if (!name.starts_with(L"column ")) return captionedFrame(window_, name);
  const POINT corner = origin();
  const int top = kColumnTops.at(static_cast<std::size_t>(name.back() - L'1'));
  return firstBelow(window_, [&](HWND child) {
    const RECT place = placeInParent(child);
    return isFrame(child) && textOf(child).empty() && isAt(place.left - corner.x, kColumnLeft) &&
           isAt(place.top - corner.y, top);
  });
}

HWND Form::find(const Sketch& sketch) const {
  HWND parent = frame(sketch.frame);
  const POINT corner = parent == window_ ? origin() : POINT{0, 0};
  HWND found = parent == nullptr ? nullptr : firstBelow(parent, [&](HWND child) {
    return GetParent(child) == parent && classOf(child) == sketch.kind &&
           standsAt(child, sketch.at, corner);
  });
  if (found == nullptr) throw std::runtime_error("not in its place: " + std::string(sketch.name));
  return found;
}

HWND Form::find(std::string_view name) const {
  const auto sketch = std::find_if(sketches_.begin(), sketches_.end(),
                                   [&](const Sketch& each) { return each.name == name; });
  if (sketch == sketches_.end()) throw std::runtime_error("no sketch of " + std::string(name));
  return find(*sketch);
}

void Form::click(std::string_view name) const {
  HWND control = find(name);
  expectSoon([&] { return isUsable(control); }, std::string(name) + " can be used");
  clickOn(control);
}

void Form::enter(std::string_view name, const std::wstring& text) const {
  click(name);
  expectSoon([&] { return focused(name); }, std::string(name) + " has the focus");
  retype(name, text);
}

void Form::tabTo(std::string_view name) const {
  expectSoon([&] { return usable(name); }, std::string(name) + " can be used");
  for (std::size_t presses = 0; !focused(name) && presses <= sketches_.size(); ++presses) {
    HWND before = focusIn(window_);
    pressKey(VK_TAB);
    expectSoon([&] { return focusIn(window_) != before; }, "Tab moves the focus");
  }
  if (!focused(name)) throw std::runtime_error("Tab does not reach " + std::string(name));
}

void Form::retype(std::string_view name, const std::wstring& text) const {
  pressKey(VK_HOME);
  pressKey(VK_END, VK_SHIFT);
  pressKey(VK_DELETE);
  typeText(text);
  expectSoon([&] { return this->text(name) == text; }, std::string(name) + " shows what was typed");
}

}  // namespace korventally::driver
