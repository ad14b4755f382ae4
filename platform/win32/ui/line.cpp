#include "platform/line.h"

#include <algorithm>
#include <memory>

#include "platform/color.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/painted_control.h"

namespace korventally::win32 {
namespace {

class NativeLine : public PaintedControl {
 public:
  NativeLine(Line& model, const Site& site) : PaintedControl(model, site, L"STATIC", SS_SIMPLE) {}

 protected:
  /// The model's rule has no thickness; on the screen it has one pixel, more on a fine screen.
  LRESULT onMessage(UINT message, WPARAM first, LPARAM second) override {
    if (message == WM_WINDOWPOSCHANGING) {
      auto& at = *reinterpret_cast<WINDOWPOS*>(second);
      const int thickness = stage().scaled(1);
      at.cx = std::max(at.cx, thickness);
      at.cy = std::max(at.cy, thickness);
    }
    return PaintedControl::onMessage(message, first, second);
  }

  void paint(HDC dc, const RECT& area) override {
    fill(dc, area, textColor(model().foreColor(), colors::kWhite, true));
  }
};

}  // namespace

std::unique_ptr<NativeControl> makeLine(Line& model, const Site& site) {
  return std::make_unique<NativeLine>(model, site);
}

}  // namespace korventally::win32
