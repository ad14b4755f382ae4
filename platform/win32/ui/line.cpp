#include "platform/line.h"

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
  void paint(HDC dc, const RECT& area) override {
    fill(dc, area, textColor(model().foreColor(), colors::kWhite, true));
  }
};

}  // namespace

std::unique_ptr<NativeControl> makeLine(Line& model, const Site& site) {
  return std::make_unique<NativeLine>(model, site);
}

}  // namespace korventally::win32
