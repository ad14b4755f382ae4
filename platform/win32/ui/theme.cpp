#include "platform/win32/ui/theme.h"

#include "platform/win32/ui/system_function.h"

namespace korventally::win32 {
namespace {

HTHEME openButtonTheme(int dpi) {
  // Also loads the library, which is then asked for a function that an older one lacks.
  if (!IsAppThemed()) return nullptr;
  using OpenType = HTHEME(WINAPI*)(HWND, LPCWSTR, UINT);
  const auto open = systemFunction<OpenType>(L"uxtheme", "OpenThemeDataForDpi");
  return open ? open(nullptr, L"BUTTON", static_cast<UINT>(dpi))
              : OpenThemeData(nullptr, L"BUTTON");
}

}  // namespace

ButtonTheme::ButtonTheme(int dpi) : theme_(openButtonTheme(dpi)) {}

ButtonTheme::~ButtonTheme() {
  if (theme_ != nullptr) CloseThemeData(theme_);
}

void ButtonTheme::draw(HDC dc, int part, int state, const RECT& area) const {
  DrawThemeBackground(theme_, dc, part, state, &area, nullptr);
}

RECT ButtonTheme::content(HDC dc, int part, int state, const RECT& area) const {
  RECT inner = area;
  GetThemeBackgroundContentRect(theme_, dc, part, state, &area, &inner);
  return inner;
}

SIZE ButtonTheme::size(HDC dc, int part, int state) const {
  SIZE size{};
  GetThemePartSize(theme_, dc, part, state, nullptr, TS_DRAW, &size);
  return size;
}

}  // namespace korventally::win32
