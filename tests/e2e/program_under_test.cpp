#include "tests/e2e/program_under_test.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

namespace korventally::driver {
namespace {

constexpr const wchar_t* kDialogClass = L"#32770";

std::wstring withoutAccessKey(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

}  // namespace

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

bool agreesToSessionEnd(const Program& program) {
  const std::vector<HWND> all = program.windows();
  return std::all_of(all.begin(), all.end(),
                     [](HWND window) { return ask(window, WM_QUERYENDSESSION) != 0; });
}

void tellSessionEnd(const Program& program, bool ends) {
  for (HWND window : program.windows()) ask(window, WM_ENDSESSION, ends);
}

void walkShortCase(const Program& program, const TestFolder& folder) {
  const Form wizard = program.wizard();
  const auto pass = [&](std::string_view button, std::string_view opened) {
    wizard.click(button);
    expectSoon([&] { return wizard.usable(opened); }, std::string(opened) + " opens");
  };
  const std::wstring data = folder.workDir() + L"a.con";
  if (!fs::exists(data)) writeFile(data, "any bytes");
  wizard.enter("txtWorkDir", folder.workDir());
  pass("cmdNext1", "cmdNext2");
  pass("cmdNext2", "cmdNextGroup");
  wizard.enter("txtConcFile", data);
  pass("cmdNextGroup", "cmdNext3");
  wizard.enter("txtConcFile", data);
  pass("cmdNext3", "cmdNext4");
  for (const auto& [box, text] : std::initializer_list<std::pair<std::string_view, std::wstring>>{
           {"txtReceptorDATFile", data},
           {"txtYear", L"2009"},
           {"txtMonth", L"01"},
           {"txtDay", L"12"},
           {"txtHour", L"00"},
           {"txtRunLength", L"168"}}) {
    wizard.enter(box, text);
  }
  wizard.click("optReceptor_Generic");
  pass("cmdNext4", "cmdRUN");
  wizard.click("cmdRUN");
}

}  // namespace korventally::driver
