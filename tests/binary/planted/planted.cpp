// Somebody's library under the name of one of Windows' own: says that it was loaded.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  wchar_t path[MAX_PATH + 10];
  GetModuleFileNameW(library, path, MAX_PATH);
  lstrcatW(path, L".loaded");
  CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  return TRUE;
}
