#pragma once

#include <string>

#include "platform/win32/ui/native_control.h"

namespace korventally::win32 {

/// A control that paints itself, because Windows' own look has no room for the model's colours
/// under a visual style. In all else it is Windows' control.
class PaintedControl : public NativeControl {
 public:
  void paintOn(HDC dc) override;

 protected:
  using NativeControl::NativeControl;

  /// Paints the whole control, ground included; the font is selected, text has no ground.
  virtual void paint(HDC dc, const RECT& area) = 0;

  LRESULT onMessage(UINT message, WPARAM first, LPARAM second) override;
  std::optional<LRESULT> notify(const NMHDR& header) override;

  /// What the container shows behind the control.
  void paintGround(HDC dc, const RECT& area);
  /// The text in the characters of the font selected.
  const std::wstring& caption() const { return caption_; }
  SIZE captionSize(HDC dc) const;
  /// Of all controls only the one that the model has the focus on asks Windows.
  bool hasKeyboard() const;
  /// Whether to show that the control has the focus.
  bool showsFocus() const;

 private:
  /// Paints for somebody else, who finds the device context as it was.
  void paintFor(HDC dc);
  void paintBuffered();
  /// Selects the control's font and puts the caption into its characters.
  void selectFont(HDC dc);

  std::wstring caption_;
};

}  // namespace korventally::win32
