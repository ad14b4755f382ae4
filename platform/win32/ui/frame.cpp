#include "platform/frame.h"

#include <algorithm>
#include <memory>
#include <string>

#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/painted_control.h"

namespace korventally::win32 {
namespace {

constexpr int kCaptionIndent = 8;
constexpr int kCaptionMargin = 3;

/// A group box that is the parent of its controls, so that disabling it makes them inert while
/// their own state stays.
class NativeFrame : public PaintedControl {
 public:
  NativeFrame(Frame& model, const Site& site)
      : PaintedControl(model, site, L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                       WS_EX_CONTROLPARENT) {}

 protected:
  LRESULT onMessage(UINT message, WPARAM first, LPARAM second) override {
    if (const auto answer = reflect(message, first, second)) return *answer;
    return PaintedControl::onMessage(message, first, second);
  }

  void paint(HDC dc, const RECT& area) override {
    fill(dc, area, groundColor(model().backColor()));
    const RECT captionArea = areaOfCaption(dc, area);
    paintBorder(dc, area, captionArea);
    const std::wstring text = caption();
    RECT textArea = captionArea;
    textArea.left += stage().scaled(kCaptionMargin);
    SetTextColor(dc, textColor(model().foreColor(), model().backColor(), model().usable()));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &textArea,
              DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  }

 private:
  RECT areaOfCaption(HDC dc, const RECT& area) const {
    const SIZE size = captionSize(dc);
    const LONG left = area.left + stage().scaled(kCaptionIndent);
    const LONG right = left + size.cx + 2 * stage().scaled(kCaptionMargin);
    return {left, area.top, std::min(right, area.right), area.top + size.cy};
  }

  void paintBorder(HDC dc, const RECT& area, const RECT& captionArea) {
    TEXTMETRICW metrics;
    GetTextMetricsW(dc, &metrics);
    RECT border = area;
    border.top += metrics.tmHeight / 2;
    SetDCBrushColor(dc, groupBorderColor());
    FrameRect(dc, &border, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    if (!model().text().empty()) fill(dc, captionArea, groundColor(model().backColor()));
  }
};

}  // namespace

std::unique_ptr<NativeControl> makeFrame(Frame& model, const Site& site) {
  return std::make_unique<NativeFrame>(model, site);
}

}  // namespace korventally::win32
