#include "platform/application.h"

#include <cstdlib>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "platform/win32/system/text.h"
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

/// The runtime has counted the words already, so that a start without any needs no shell.
std::vector<std::string> arguments() {
  if (__argc < 2) return {};
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
  try {
    return body(arguments());
  } catch (const std::bad_alloc&) {
    return giveUp(L"KorvenTally has run out of memory and has to close.");
  } catch (const std::exception&) {
    return giveUp(L"KorvenTally ran into an internal error and has to close.");
  }
}

}  // namespace korventally
