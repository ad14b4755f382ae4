#pragma once

#include "platform/win32/ui/painted_control.h"

namespace korventally::win32 {

/// What an option button and a check box have in common: a mark that is on or off, and a caption
/// in the model's colour beside it.
class ChoiceControl : public PaintedControl {
 public:
  void refresh(Aspect aspect) override;

 protected:
  /// How the mark is drawn: a part of the button theme with its first state, and the flags for
  /// DrawFrameControl where there is no theme.
  struct Mark {
    int part;
    int firstStateOff;
    int firstStateOn;
    UINT classic;
  };

  ChoiceControl(Control& model, const Site& site, DWORD style, const Mark& mark)
      : PaintedControl(model, site, L"BUTTON", style | WS_TABSTOP), mark_(mark) {}

  virtual bool on() const = 0;
  /// Another program has set the mark.
  virtual void adopt(bool on) = 0;
  void attached() override;
  LRESULT onMessage(UINT message, WPARAM first, LPARAM second) override;
  void paint(HDC dc, const RECT& area) override;

 private:
  int themeState() const;
  /// Returns the width that the mark takes.
  int paintMark(HDC dc, const RECT& area);

  Mark mark_;
  bool fromModel_ = false;
};

}  // namespace korventally::win32
