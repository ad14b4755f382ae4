#pragma once

#include <span>
#include <string>
#include <string_view>

#include "driver/input.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::driver {

/// A place in twentieths of a point, fifteen to the pixel at 96 dots per inch.
struct Twips {
  int left, top, width, height;
};

/// Where a control stands that the driver uses. Frames are named by their captions' beginnings,
/// those without a caption by "column" and the number of their step.
struct Sketch {
  std::string_view name;
  std::wstring_view kind;  ///< the window class
  std::wstring_view frame;
  Twips at;
};

extern const std::span<const Sketch> kWizard;
extern const std::span<const Sketch> kSummary;

/// Reads of any window, also while its program waits for something.
std::wstring textOf(HWND window);
std::wstring classOf(HWND window);
LRESULT ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);
/// Whether it and all around it are enabled and shown.
bool isUsable(HWND window);
void clickOn(HWND window);
HWND focusIn(HWND window);

/// An open window of the program, whose controls go by their names.
class Form {
 public:
  Form(HWND window, std::span<const Sketch> sketches) : window_(window), sketches_(sketches) {}

  HWND window() const { return window_; }
  /// The control that stands where the sketch says; throws when there is none.
  HWND find(std::string_view name) const;
  HWND find(const Sketch& sketch) const;

  std::wstring text(std::string_view name) const { return textOf(find(name)); }
  bool usable(std::string_view name) const { return isUsable(find(name)); }
  bool checked(std::string_view name) const { return ask(find(name), BM_GETCHECK) == BST_CHECKED; }
  bool focused(std::string_view name) const { return focusIn(window_) == find(name); }

  /// Clicks as soon as it can be clicked; throws when it stays unusable.
  void click(std::string_view name) const;
  /// Clicks into a box and replaces its text.
  void enter(std::string_view name, const std::wstring& text) const;
  /// Presses Tab until the control has the focus.
  void tabTo(std::string_view name) const;
  /// Replaces the text of the box that has the focus.
  void retype(std::string_view name, const std::wstring& text) const;

 private:
  POINT origin() const;
  HWND frame(std::wstring_view name) const;

  HWND window_;
  std::span<const Sketch> sketches_;
};

}  // namespace korventally::driver
