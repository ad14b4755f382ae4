#pragma once

#include <string>

namespace korventally {

class Window;

enum class Buttons { kOk, kYesNo };
enum class Answer { kOk, kYes, kNo };

/// Shows a modal message box without an icon and returns the button pressed; closing the box is
/// "OK" or "No". `owner` may be none, or closed by now.
Answer messageBox(Window* owner, const std::string& text, const std::string& title,
                  Buttons buttons = Buttons::kOk);

/// The titles: of every message about wrong input or a failure; of every question and warning.
inline constexpr const char* kErrorTitle = "Error";
inline constexpr const char* kWarningTitle = "Warning";

/// The common open-file dialog of a window, set up anew before each showing.
class CommonDialog {
 public:
  explicit CommonDialog(Window& owner) : owner_(owner) {}

  /// Descriptions and patterns in turn, between "|" characters.
  std::string Filter;
  /// The filter shown first, counted from 1.
  int FilterIndex = 1;
  std::string InitDir;
  /// The chosen file's full path; left as it was when the dialog is cancelled.
  std::string FileName;

  void ShowOpen();

 private:
  Window& owner_;
};

}  // namespace korventally
