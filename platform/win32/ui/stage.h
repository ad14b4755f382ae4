#pragma once

#include <windows.h>

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/font.h"
#include "platform/win32/ui/back_buffer.h"
#include "platform/win32/ui/dpi.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/theme.h"

namespace korventally::win32 {

/// What the controls of one open window share: its resolution, its fonts, the visual style,
/// what has to be painted, and whether what the user does still counts.
class Stage {
 public:
  explicit Stage(HWND window) : window_(window), dpi_(dpiOf(window)) {}

  int dpi() const { return dpi_; }
  /// Forgets the fonts and the style of the old resolution: give every control its font anew.
  void setDpi(int dpi);

  /// Twips in pixels of this window, rounded.
  int fromTwips(int twips) const;
  /// Pixels at 96 dpi, in those of this window.
  int scaled(int pixels) const { return MulDiv(pixels, dpi_, USER_DEFAULT_SCREEN_DPI); }
  HFONT font(const Font& font);
  /// Where to paint what is to show at once: see `BackBuffer`.
  HDC buffer(HDC screen, SIZE size) { return buffer_.dc(screen, size); }
  /// Opened once: each opening asks the system for a dozen things.
  const ButtonTheme& buttonTheme();
  /// The user has chosen another visual style.
  void forgetTheme() { theme_.reset(); }

  /// A control has to be painted. The window does it when it comes to its messages, for all at
  /// once: a handler may change many of them, and one of them many times.
  void soil(const Control& control);
  /// Those that have to be painted, which the caller does now.
  std::set<const Control*> takeSoiled() { return std::exchange(soiled_, {}); }

  /// Once the window has closed, messages that were under way are no doings of the user's.
  bool closed() const { return closed_; }
  void close() { closed_ = true; }

 private:
  HWND window_;
  int dpi_;
  bool closed_ = false;
  std::vector<std::pair<Font, GdiObject<HFONT>>> fonts_;
  std::optional<ButtonTheme> theme_;
  BackBuffer buffer_;
  std::set<const Control*> soiled_;
};

}  // namespace korventally::win32
