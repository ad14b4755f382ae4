// Stands in for the engine: writes the arguments that it was given into a file beside itself.
#include <windows.h>

#include <cstdio>
#include <string>

int wmain(int count, wchar_t** arguments) {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  FILE* const file = _wfopen((path + L".arguments").c_str(), L"wb");
  if (file == nullptr) return 1;
  for (int i = count > 1 ? 1 : 0; i < count; ++i) {
    std::fwrite(arguments[i], sizeof(wchar_t), std::wstring(arguments[i]).size() + 1, file);
  }
  return std::fclose(file);
}
