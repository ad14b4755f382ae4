#include "platform/application.h"

#include <exception>
#include <new>
#include <string>
#include <vector>

#include "platform/win32/system/text.h"
#include "platform/win32/ui/session.h"
#include "platform/win32/ui/system_function.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally {
namespace {

/// Libraries come from Windows' folder alone, so that nobody can slip one in beside the
/// program. Nothing may be loaded before this.
void loadFromSystemFolderOnly() {
  using SetDirectories = BOOL(WINAPI*)(DWORD);
  const auto set = win32::systemFunction<SetDirectories>(L"kernel32", "SetDefaultDllDirectories");
  if (set) set(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

/// OLE for this thread as long as the program lives: the folder browser's newer style and the names
/// for screen readers need it.
class Ole {
 public:
  Ole() : entered_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~Ole() {
    if (entered_) OleUninitialize();
  }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;

 private:
  const bool entered_;
};

std::vector<std::string> arguments() {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> given;
  for (int i = 1; i < count; ++i) given.push_back(win32::fromWide(words[i]));
  LocalFree(static_cast<void*>(words));
  return given;
}

int giveUp(const wchar_t* why) {
  MessageBoxW(nullptr, why, L"Error", MB_OK);
  return 1;
}

}  // namespace

int runApplication(int (*body)(const std::vector<std::string>& arguments)) {
  loadFromSystemFolderOnly();
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);
  const Ole ole;
  try {
    const win32::SessionWatch watch;
    return body(arguments());
  } catch (const std::bad_alloc&) {
    return giveUp(L"KorvenTally has run out of memory and has to close.");
  } catch (const std::exception&) {
    return giveUp(L"KorvenTally ran into an internal error and has to close.");
  }
}

}  // namespace korventally
