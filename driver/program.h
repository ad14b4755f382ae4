#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "driver/forms.h"

namespace korventally::driver {

namespace fs = std::filesystem;

/// The shipped program as a process of its own. Ends with the test, together with the editor
/// windows that it opened.
class Program {
 public:
  /// Starts the program that lies in the folder, with these words on its command line. Returns when
  /// its window is there, perhaps under a message.
  explicit Program(const fs::path& folder, const std::wstring& arguments = L"");
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Form wizard() const { return {window_, kWizard}; }
  Form summary() const { return {windowNamed(L" KORVENTALLY Run Information:"), kSummary}; }

  /// Waits for a window of the program with this caption; throws when none opens.
  HWND windowNamed(const std::wstring& caption) const;
  /// Opens a menu of the wizard and an entry in it by their access keys.
  void chooseMenu(wchar_t menu, wchar_t entry) const;
  bool ended(std::chrono::milliseconds limit = 10s) const;

  /// All top-level windows of the program, those that nobody sees included.
  std::vector<HWND> windows() const;

 private:
  HWND find(const std::wstring& caption) const;

  PROCESS_INFORMATION process_{};
  HWND window_ = nullptr;
};

/// The windows of the editor that show a file of this name.
HWND editorShowing(const std::wstring& fileName);
void closeEditors();

}  // namespace korventally::driver
