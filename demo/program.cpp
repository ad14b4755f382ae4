#include "demo/program.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace korventally::demo {
namespace {

constexpr const wchar_t* kWizardCaption = L" KorvenTally [";
constexpr const wchar_t* kDialogClass = L"#32770";

BOOL CALLBACK collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

std::wstring withoutAccessKey(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

}  // namespace

TestFolder::TestFolder(const std::wstring& name) {
  // Process numbers come again; a tick that comes again does so after weeks.
  static ULONGLONG last = GetTickCount64();
  parent_ = fs::temp_directory_path() / ("korventally-" + std::to_string(++last));
  path_ = parent_ / name;
  fs::create_directories(path_);
}

/// File by file: the library's remove_all never returns while another program holds one of them.
TestFolder::~TestFolder() {
  std::error_code ignored;
  std::vector<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(parent_, ignored)) {
    found.push_back(entry.path());
  }
  std::for_each(found.rbegin(), found.rend(),
                [&](const fs::path& each) { fs::remove(each, ignored); });
  fs::remove(parent_, ignored);
}

std::string readFile(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

void writeFile(const fs::path& path, const std::string& bytes) {
  if (!(std::ofstream(path, std::ios::binary) << bytes).flush()) {
    throw std::runtime_error("could not write " + path.string());
  }
}

fs::path folderFrom(const wchar_t* variable) {
  const wchar_t* value = _wgetenv(variable);
  if (value == nullptr) throw std::runtime_error("run by scripts/test, which names the folders");
  return fs::path(value).make_preferred();
}

fs::path installation() { return folderFrom(L"KORVENTALLY_INSTALLATION"); }

Program::Program(const fs::path& folder) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  const std::wstring exe = (folder / "KorvenTallyWizard.exe").wstring();
  if (!CreateProcessW(exe.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process_)) {
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

bool Program::agreesToSessionEnd() const {
  const std::vector<HWND> all = windows();
  return std::all_of(all.begin(), all.end(),
                     [](HWND window) { return ask(window, WM_QUERYENDSESSION) != 0; });
}

void Program::tellSessionEnd(bool ends) const {
  for (HWND window : windows()) ask(window, WM_ENDSESSION, ends);
}

HWND Program::windowNamed(const std::wstring& caption) const {
  HWND window = nullptr;
  expectSoon(
      [&] {
        window = find(caption);
        return window != nullptr && GetForegroundWindow() == window && focusIn(window) != nullptr;
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

Message waitForMessage(const Program& program, const std::wstring& title) {
  Message message{program.windowNamed(title), title, L"", L""};
  if (classOf(message.window) != kDialogClass) throw std::runtime_error("not a message box");
  for (HWND child = GetWindow(message.window, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (!IsWindowVisible(child)) continue;
    const std::wstring text = textOf(child);
    if (classOf(child) == L"static") message.text += text;
    if (classOf(child) != L"button") continue;
    message.buttons += (message.buttons.empty() ? L"" : L" ") + withoutAccessKey(text);
  }
  return message;
}

void answer(const Message& message, int button) {
  HWND control = GetDlgItem(message.window, button);
  expectSoon([&] { return isUsable(control); }, "the message can be answered");
  clickOn(control);
  expectSoon([&] { return !IsWindow(message.window); }, "the message is gone");
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

}  // namespace korventally::demo
