#include "platform/win32/ui/dpi.h"

#include "platform/win32/ui/system_function.h"

namespace korventally::win32 {

int dpiOf(HWND window) {
  using GetDpiForWindowType = UINT(WINAPI*)(HWND);
  if (const auto ask = systemFunction<GetDpiForWindowType>(L"user32", "GetDpiForWindow")) {
    if (const UINT dpi = ask(window)) return static_cast<int>(dpi);
  }
  HDC dc = GetDC(nullptr);
  const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
  ReleaseDC(nullptr, dc);
  return dpi;
}

void growToWindow(RECT& area, DWORD style, bool menu, DWORD extendedStyle, int dpi) {
  using AdjustType = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
  const auto adjust = systemFunction<AdjustType>(L"user32", "AdjustWindowRectExForDpi");
  if (adjust && adjust(&area, style, menu, extendedStyle, static_cast<UINT>(dpi))) return;
  AdjustWindowRectEx(&area, style, menu, extendedStyle);
}

int systemMetric(int index, int dpi) {
  using MetricType = int(WINAPI*)(int, UINT);
  const auto metric = systemFunction<MetricType>(L"user32", "GetSystemMetricsForDpi");
  return metric ? metric(index, static_cast<UINT>(dpi)) : GetSystemMetrics(index);
}

}  // namespace korventally::win32
