#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "demo/form.h"

namespace korventally::demo {

namespace fs = std::filesystem;

/// A folder of a test's own, deleted in the end.
class TestFolder {
 public:
  explicit TestFolder(const std::wstring& name = L"study");
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const fs::path& path() const { return path_; }
  /// As a working directory is written: with a backslash at its end.
  std::wstring workDir() const { return path_.wstring() + L"\\"; }

 private:
  fs::path parent_;
  fs::path path_;
};

std::string readFile(const fs::path& path);
void writeFile(const fs::path& path, const std::string& bytes);

/// Folders that the script names in the environment.
fs::path folderFrom(const wchar_t* variable);
fs::path installation();

/// The shipped program as a process of its own. Ends with the test, together with the editor
/// windows that it opened.
class Program {
 public:
  explicit Program(const fs::path& folder = installation());
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Form wizard() const { return {window_, kWizard}; }
  Form summary() const { return {windowNamed(L" KORVENTALLY Run Information:"), kSummary}; }
  Form about() const { return {windowNamed(L" About KORVENTALLY..."), kAbout}; }

  /// Waits for a window of the program with this caption; throws when none opens.
  HWND windowNamed(const std::wstring& caption) const;
  /// Opens a menu of the wizard and an entry in it by their access keys.
  void chooseMenu(wchar_t menu, wchar_t entry) const;
  bool ended(std::chrono::milliseconds limit = 10s) const;

  /// What the system asks and tells all windows of a program when the person logs off. In the end
  /// the session ends, or somebody has objected and it goes on.
  bool agreesToSessionEnd() const;
  void tellSessionEnd(bool ends) const;

 private:
  HWND find(const std::wstring& caption) const;
  /// All top-level windows of the program, those that nobody sees included.
  std::vector<HWND> windows() const;

  PROCESS_INFORMATION process_{};
  HWND window_ = nullptr;
};

/// A message box of the program, as the person sees it.
struct Message {
  HWND window;
  std::wstring title, text;
  std::wstring buttons;  ///< captions without access keys, with blanks between them
};

Message waitForMessage(const Program& program, const std::wstring& title);
/// Presses a button and waits until the box is gone.
void answer(const Message& message, int button);
/// The windows of the editor that show a file of this name.
HWND editorShowing(const std::wstring& fileName);
void closeEditors();

}  // namespace korventally::demo
