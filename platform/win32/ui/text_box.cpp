#include "platform/text_box.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/control.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/clipboard.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/dropped_files.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/win32/ui/text_margins.h"

namespace korventally::win32 {
namespace {

constexpr WPARAM kControlA = 1;
constexpr WPARAM kControlBackspace = 127;

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring firstLine(std::wstring text) {
  text.resize(std::min(text.find_first_of(L"\r\n"), text.size()));
  return text;
}

/// The messages at which a window paints.
bool paints(UINT message) {
  return message == WM_NCPAINT || message == WM_ERASEBKGND || message == WM_PAINT;
}

class NativeTextBox : public NativeControl {
 public:
  NativeTextBox(TextBox& model, const Site& site)
      : NativeControl(model, site, L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP,
                      WS_EX_CLIENTEDGE | (model.takesPath() ? WS_EX_ACCEPTFILES : 0), 0),
        box_(model) {
    SendMessageW(handle(), EM_LIMITTEXT, static_cast<WPARAM>(model.limit()), 0);
  }

  void refresh(Aspect aspect) override {
    if (aspect == Aspect::kSelection) {
      SendMessageW(handle(), EM_SETSEL, 0, -1);
    } else {
      fromCode_ = true;
      // A box that appears is painted by Windows, and by nobody else.
      holdsPainting_ = aspect != Aspect::kVisible;
      NativeControl::refresh(aspect);
      fromCode_ = holdsPainting_ = false;
    }
    // Whoever goes on typing does so behind the text that was put there.
    if (aspect == Aspect::kText) SendMessageW(handle(), EM_SETSEL, 0x7FFFFFFF, 0x7FFFFFFF);
  }

 protected:
  /// The margins are taken from the area that the text has, which is asked for anew. The box is
  /// shown by the same call.
  void attached() override {
    NativeControl::attached();
    const UINT show = box_.visible() ? SWP_SHOWWINDOW : 0;
    SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                 show | SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  LRESULT onMessage(UINT message, WPARAM first, LPARAM second) override {
    // Some versions of Windows paint at once what the program changes. It is painted later, with
    // all others that have changed (`lookChanged`).
    if (holdsPainting_ && paints(message)) return 0;
    switch (message) {
      case WM_CHAR:
        if (!takesCharacter(first)) return 0;
        break;
      case WM_PASTE:
        if (box_.takesPath() && pasteWithoutQuotes()) return 0;
        break;
      case WM_DROPFILES:
        if (!stage().closed()) box_.dropFiles(takeDrop(handle(), first));
        return 0;
    }
    const LRESULT answer = NativeControl::onMessage(message, first, second);
    return extend(answer, message, second);
  }

  void command(WORD code) override {
    if (code == EN_CHANGE && !fromCode_) box_.edited(fromWide(textOf(handle())));
  }

 private:
  /// Adds the margins to what Windows has answered.
  LRESULT extend(LRESULT answer, UINT message, LPARAM second) {
    switch (message) {
      case WM_NCCALCSIZE:
        // A rectangle, or a structure that begins with one.
        margins_.takeFrom(*reinterpret_cast<RECT*>(second), handle());
        break;
      case WM_NCPAINT:
        margins_.paint(handle(), groundColor(box_.backColor()));
        break;
      case WM_NCHITTEST: {
        const POINTS onScreen = MAKEPOINTS(second);
        return margins_.contain(handle(), {onScreen.x, onScreen.y}) ? HTCLIENT : answer;
      }
    }
    return answer;
  }

  bool takesCharacter(WPARAM code) {
    if (stage().closed()) return false;
    if (code == kControlA) SendMessageW(handle(), EM_SETSEL, 0, -1);
    // Ctrl+Backspace arrives as a character that no font can show.
    if (code == kControlA || code == kControlBackspace) return false;
    return box_.acceptsKey(static_cast<std::int16_t>(code));
  }

  bool pasteWithoutQuotes() {
    const std::wstring text = firstLine(clipboardText(handle()));
    const std::size_t close = text.find_last_not_of(L" \t");
    if (text.empty() || text.front() != L'"' || close == 0 || close == std::wstring::npos ||
        text[close] != L'"') {
      return false;
    }
    replaceSelection(text.substr(1, close - 1));
    return true;
  }

  /// As if the user had typed it: within the limit.
  void replaceSelection(std::wstring text) {
    if (box_.limit() > 0) text.resize(std::min(text.size(), room()));
    SendMessageW(handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
  }

  std::size_t room() const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    const int kept = GetWindowTextLengthW(handle()) - static_cast<int>(end - start);
    return static_cast<std::size_t>(std::max(0, box_.limit() - kept));
  }

  TextBox& box_;
  TextMargins margins_;
  bool fromCode_ = false;
  bool holdsPainting_ = false;
};

}  // namespace

std::unique_ptr<NativeControl> makeTextBox(TextBox& model, const Site& site) {
  return std::make_unique<NativeTextBox>(model, site);
}

}  // namespace korventally::win32
