#include "driver/program.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "driver/forms.h"
#include "driver/input.h"

namespace korventally::driver {
namespace {

constexpr const wchar_t* kWizardCaption = L" KorvenTally [";

BOOL CALLBACK collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

}  // namespace

Program::Program(const fs::path& folder, const std::wstring& arguments) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  const std::wstring exe = (folder / "KorvenTallyWizard.exe").wstring();
  std::wstring commandLine = L"\"" + exe + L"\" " + arguments;
  if (!CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process_)) {
    throw std::runtime_error("could not start the program");
  }
  window_ = windowNamed(kWizardCaption);
}

Program::~Program() {
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, 5000);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  closeEditors();
}

std::vector<HWND> Program::windows() const {
  std::vector<HWND> all;
  EnumWindows(collect, reinterpret_cast<LPARAM>(&all));
  std::erase_if(all, [this](HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process != process_.dwProcessId;
  });
  return all;
}

HWND Program::find(const std::wstring& caption) const {
  for (HWND window : windows()) {
    if (IsWindowVisible(window) && textOf(window).starts_with(caption)) return window;
  }
  return nullptr;
}

HWND Program::windowNamed(const std::wstring& caption) const {
  HWND window = nullptr;
  expectSoon(
      [&] {
        window = find(caption);
        if (window == nullptr) return false;
        const bool covered = !IsWindowEnabled(window);
        return covered || (GetForegroundWindow() == window && focusIn(window) != nullptr);
      },
      "window " + fs::path(caption).string());
  return window;
}

void Program::chooseMenu(wchar_t menu, wchar_t entry) const {
  pressKey(static_cast<WORD>(menu), VK_MENU);
  pressKey(static_cast<WORD>(entry));
}

bool Program::ended(std::chrono::milliseconds limit) const {
  return WaitForSingleObject(process_.hProcess, static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

HWND editorShowing(const std::wstring& fileName) {
  for (HWND editor = FindWindowExW(nullptr, nullptr, L"Notepad", nullptr); editor != nullptr;
       editor = FindWindowExW(nullptr, editor, L"Notepad", nullptr)) {
    if (textOf(editor).starts_with(fileName)) return editor;
  }
  return nullptr;
}

void closeEditors() {
  while (HWND editor = editorShowing(L"")) {
    PostMessageW(editor, WM_CLOSE, 0, 0);
    if (!waitUntil([&] { return !IsWindow(editor); }, 3s)) return;
  }
}

}  // namespace korventally::driver
