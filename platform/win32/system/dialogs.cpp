#include "platform/dialogs.h"

// The second header needs the types of the first.
// clang-format off
#include <windows.h>
#include <commdlg.h>
#include <cstddef>
#include <string>
// clang-format on

#include "platform/win32/system/dialog_filter.h"
#include "platform/win32/system/ole.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/native_lookup.h"
#include "platform/window.h"

namespace korventally {
namespace {

using win32::toWide;

/// The longest path that Windows knows.
constexpr std::size_t kLongestPath = 32768;

/// The open-file dialog changes the current directory whatever its flags say; paths relative to it
/// must not change their meaning behind the program's back.
class KeepCurrentDirectory {
 public:
  KeepCurrentDirectory() : path_(kLongestPath, L'\0') {
    path_.resize(GetCurrentDirectoryW(static_cast<DWORD>(path_.size()), path_.data()));
  }
  KeepCurrentDirectory(const KeepCurrentDirectory&) = delete;
  KeepCurrentDirectory& operator=(const KeepCurrentDirectory&) = delete;
  ~KeepCurrentDirectory() { SetCurrentDirectoryW(path_.c_str()); }

 private:
  std::wstring path_;
};

/// Shows the dialog. Nothing when the user cancels, and nothing when it cannot be shown.
std::wstring askForFile(const OPENFILENAMEW& wanted) {
  std::wstring chosen(kLongestPath, L'\0');
  OPENFILENAMEW dialog = wanted;
  dialog.lpstrFile = chosen.data();
  dialog.nMaxFile = static_cast<DWORD>(chosen.size());
  if (!GetOpenFileNameW(&dialog)) return {};
  chosen.resize(chosen.find(L'\0'));
  return chosen;
}

}  // namespace

Answer messageBox(Window* owner, const std::string& text, const std::string& title,
                  Buttons buttons) {
  const HWND ownerHandle = owner == nullptr ? nullptr : win32::nativeHandle(*owner);
  UINT style = buttons == Buttons::kYesNo ? MB_YESNO : MB_OK;
  // Without an owner the box has to keep this thread's windows from being used by itself.
  if (ownerHandle == nullptr) style |= MB_TASKMODAL;
  const int pressed = MessageBoxW(ownerHandle, toWide(text).c_str(), toWide(title).c_str(), style);
  if (buttons == Buttons::kOk) return Answer::kOk;
  return pressed == IDYES ? Answer::kYes : Answer::kNo;
}

void CommonDialog::ShowOpen() {
  const KeepCurrentDirectory keep;
  win32::useOle();
  const std::wstring filter = win32::dialogFilter(toWide(Filter));
  const std::wstring folder = toWide(InitDir);
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = win32::nativeHandle(owner_);
  dialog.lpstrFilter = filter.c_str();
  dialog.nFilterIndex = static_cast<DWORD>(FilterIndex);
  dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  // A name that does not exist may be typed: whoever asked for the file says what that means.
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  std::wstring chosen = askForFile(dialog);
  if (chosen.empty() && CommDlgExtendedError() != 0) {
    dialog.lpstrInitialDir = nullptr;  // the folder is gone, and the dialog did not take it well
    chosen = askForFile(dialog);
  }
  if (!chosen.empty()) FileName = win32::fromWide(chosen);
}

}  // namespace korventally
