#include <exception>
#include <new>

#include "platform/win32/ui/session.h"
#include "platform/win32/ui/system_function.h"
#include "platform/win32/ui/system_headers.h"
#include "wizard/program.h"

namespace {

/// Libraries come from the system's folder alone, so that nobody can slip one in beside the
/// program. Nothing may be loaded before this.
void loadFromSystemFolderOnly() {
  using SetDirectories = BOOL(WINAPI*)(DWORD);
  const auto set =
      korventally::win32::systemFunction<SetDirectories>(L"kernel32", "SetDefaultDllDirectories");
  if (set) set(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

int giveUp(const wchar_t* why) {
  MessageBoxW(nullptr, why, L"Error", MB_OK);
  return 1;
}

/// The program, or the one thing that can still be said when it cannot go on.
int run() {
  try {
    const korventally::win32::SessionWatch watch;
    return korventally::runProgram();
  } catch (const std::bad_alloc&) {
    return giveUp(L"KorvenTally has run out of memory and has to close.");
  } catch (const std::exception&) {
    return giveUp(L"KorvenTally has met a fault of its own and has to close.");
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
  loadFromSystemFolderOnly();
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);
  const HRESULT ole = OleInitialize(nullptr);  // the folder browser and accessible names need it
  const int exitCode = run();
  if (SUCCEEDED(ole)) OleUninitialize();
  return exitCode;
}
