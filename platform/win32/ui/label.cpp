#include "platform/label.h"

#include <memory>
#include <string>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/painted_control.h"

namespace korventally::win32 {
namespace {

/// How a label aligns its text: the style of the window, and how the text is drawn.
struct Alignment {
  DWORD style;
  UINT format;
};

Alignment alignmentOf(Align align) {
  switch (align) {
    case Align::kRight:
      return {SS_RIGHT, DT_RIGHT};
    case Align::kCentre:
      return {SS_CENTER, DT_CENTER};
    case Align::kLeft:
      return {SS_LEFT, DT_LEFT};
  }
  return {SS_LEFT, DT_LEFT};
}

class NativeLabel : public PaintedControl {
 public:
  NativeLabel(Label& model, const Site& site)
      : PaintedControl(model, site, L"STATIC",
                       WS_CLIPSIBLINGS | SS_NOPREFIX | alignmentOf(model.align()).style),
        format_(alignmentOf(model.align()).format) {}

  void refresh(Aspect aspect) override {
    PaintedControl::refresh(aspect);
    if (aspect == Aspect::kText) PaintedControl::refresh(Aspect::kVisible);
  }

 protected:
  /// An empty label would only cover another one in the same place.
  bool shown() const override { return model().visible() && !model().text().empty(); }

  void paint(HDC dc, const RECT& area) override {
    const OleColor ground = model().container()->backColor();
    fill(dc, area, groundColor(ground));
    SetTextColor(dc, textColor(model().foreColor(), ground, model().usable()));
    const std::wstring text = caption();
    RECT textArea = area;
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &textArea,
              format_ | DT_WORDBREAK | DT_NOPREFIX);
  }

 private:
  UINT format_;
};

}  // namespace

std::unique_ptr<NativeControl> makeLabel(Label& model, const Site& site) {
  return std::make_unique<NativeLabel>(model, site);
}

}  // namespace korventally::win32
