#include "platform/button.h"

#include <memory>
#include <string>

#include "platform/color.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/painted_control.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/win32/ui/theme.h"

namespace korventally::win32 {
namespace {

constexpr int kFocusMargin = 3;

class NativeButton : public PaintedControl {
 public:
  NativeButton(Button& model, const Site& site)
      : PaintedControl(model, site, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP), button_(model) {}

 protected:
  void command(WORD code) override {
    if (code == BN_CLICKED) button_.press();
  }

  void paint(HDC dc, const RECT& area) override {
    paintGround(dc, area);
    paintFace(dc, area);
    RECT textArea = area;
    if (pushed()) OffsetRect(&textArea, stage().scaled(1), stage().scaled(1));
    const std::wstring text = caption();
    SetTextColor(dc, textColor(colors::kWindowText, face(), model().usable()));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &textArea,
              DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
    if (showsFocus()) paintFocus(dc, area);
  }

 private:
  LRESULT state() const { return SendMessageW(handle(), BM_GETSTATE, 0, 0); }
  bool pushed() const { return state() & BST_PUSHED; }

  /// The colour that the button is to show; the button face stands for Windows' usual look.
  OleColor face() const {
    return button_.style() == Button::Style::kGraphical ? model().backColor() : colors::kButtonFace;
  }

  int themeState() const {
    if (!model().usable()) return PBS_DISABLED;
    if (pushed()) return PBS_PRESSED;
    if (state() & BST_HOT) return PBS_HOT;
    return hasKeyboard() ? PBS_DEFAULTED : PBS_NORMAL;
  }

  void paintFace(HDC dc, const RECT& area) {
    const ButtonTheme& theme = stage().buttonTheme();
    RECT inner = area;
    if (theme) {
      theme.draw(dc, BP_PUSHBUTTON, themeState(), area);
      inner = theme.content(dc, BP_PUSHBUTTON, themeState(), area);
    } else {
      RECT whole = area;
      DrawFrameControl(dc, &whole, DFC_BUTTON, DFCS_BUTTONPUSH | (pushed() ? DFCS_PUSHED : 0));
      InflateRect(&inner, -2, -2);
    }
    if (face() != colors::kButtonFace) fill(dc, inner, groundColor(face()));
  }

  void paintFocus(HDC dc, const RECT& area) {
    RECT focus = area;
    InflateRect(&focus, -stage().scaled(kFocusMargin), -stage().scaled(kFocusMargin));
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    DrawFocusRect(dc, &focus);
  }

  Button& button_;
};

}  // namespace

std::unique_ptr<NativeControl> makeButton(Button& model, const Site& site) {
  return std::make_unique<NativeButton>(model, site);
}

}  // namespace korventally::win32
