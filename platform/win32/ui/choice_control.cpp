#include "platform/win32/ui/choice_control.h"

#include <algorithm>
#include <string>

#include "platform/color.h"
#include "platform/control.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/painted_control.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/win32/ui/theme.h"

namespace korventally::win32 {
namespace {

constexpr int kClassicMark = 13;
constexpr int kGap = 4;

/// The states of a mark follow each other in this order in the theme, from the first on.
enum StateOffset { kNormal, kHot, kPressed, kDisabled };

}  // namespace

void ChoiceControl::refresh(Aspect aspect) {
  if (aspect == Aspect::kValue) {
    fromModel_ = true;
    SendMessageW(handle(), BM_SETCHECK, on() ? BST_CHECKED : BST_UNCHECKED, 0);
    fromModel_ = false;
  }
  PaintedControl::refresh(aspect);
}

void ChoiceControl::attached() {
  PaintedControl::attached();
  if (on()) refresh(Aspect::kValue);
}

/// The model decides what becomes of a mark that another program sets, and shows it.
LRESULT ChoiceControl::onMessage(UINT message, WPARAM first, LPARAM second) {
  if (message != BM_SETCHECK || fromModel_) {
    return PaintedControl::onMessage(message, first, second);
  }
  if (!stage().closed() && model().usable()) adopt(first != BST_UNCHECKED);
  return 0;
}

void ChoiceControl::paint(HDC dc, const RECT& area) {
  const OleColor ground = model().backColor();
  fill(dc, area, groundColor(ground));
  RECT textArea = area;
  textArea.left += paintMark(dc, area) + stage().scaled(kGap);
  const std::wstring text = caption();
  SetTextColor(dc, textColor(model().foreColor(), ground, model().usable()));
  // Above 96 dpi a caption may grow a little more than its place; set closer, it still fits.
  const bool tooWide = captionSize(dc).cx > textArea.right - textArea.left;
  if (tooWide && stage().dpi() > USER_DEFAULT_SCREEN_DPI) SetTextCharacterExtra(dc, -1);
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &textArea,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  SetTextCharacterExtra(dc, 0);
  if (!showsFocus()) return;
  const SIZE size = captionSize(dc);
  const LONG top = std::max(area.top, (area.bottom - size.cy) / 2 - 1);
  RECT focus{textArea.left - 2, top, std::min(area.right, textArea.left + size.cx + 2),
             std::min(area.bottom, top + size.cy + 2)};
  if (text.empty()) focus = area;
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  DrawFocusRect(dc, &focus);
}

int ChoiceControl::themeState() const {
  const int first = on() ? mark_.firstStateOn : mark_.firstStateOff;
  if (!model().usable()) return first + kDisabled;
  const LRESULT state = SendMessageW(handle(), BM_GETSTATE, 0, 0);
  if (state & BST_PUSHED) return first + kPressed;
  return first + (state & BST_HOT ? kHot : kNormal);
}

int ChoiceControl::paintMark(HDC dc, const RECT& area) {
  const ButtonTheme& theme = stage().buttonTheme();
  const int side = stage().scaled(kClassicMark);
  SIZE size{side, side};
  if (theme) size = theme.size(dc, mark_.part, themeState());
  const LONG top = (area.bottom - size.cy) / 2;
  RECT place{area.left, top, area.left + size.cx, top + size.cy};
  if (theme) {
    theme.draw(dc, mark_.part, themeState(), place);
  } else {
    const UINT flags = (on() ? DFCS_CHECKED : 0) | (model().usable() ? 0 : DFCS_INACTIVE);
    DrawFrameControl(dc, &place, DFC_BUTTON, mark_.classic | flags);
  }
  return size.cx;
}

}  // namespace korventally::win32
