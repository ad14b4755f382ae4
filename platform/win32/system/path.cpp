#include "platform/win32/system/path.h"

#include <windows.h>

#include <string>

#include "platform/win32/system/text.h"

namespace korventally::win32 {
namespace {

bool isAbsolute(const std::wstring& path) {
  return path.starts_with(L"\\\\") || (path.size() > 2 && path[1] == L':' && path[2] == L'\\');
}

}  // namespace

std::wstring resolve(const std::wstring& path) {
  const DWORD needed = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(needed, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), needed, full.data(), nullptr));
  return full.size() < needed ? full : path;
}

std::wstring nativePath(const std::string& path) {
  std::wstring plain = toWide(path);
  if (plain.size() + 1 < MAX_PATH) return plain;
  // A path with the prefix is taken literally, so it is tidied up first.
  std::wstring full = resolve(plain);
  if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\")) return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
  return isAbsolute(full) ? L"\\\\?\\" + full : plain;
}

std::string fullPath(const std::string& path) {
  std::wstring plain = toWide(path);
  return plain.empty() || isAbsolute(plain) ? path : fromWide(resolve(plain));
}

std::wstring systemDirectory() {
  wchar_t buffer[MAX_PATH];
  const UINT length = GetSystemDirectoryW(buffer, MAX_PATH);
  return length < MAX_PATH ? std::wstring(buffer, length) : std::wstring();
}

}  // namespace korventally::win32
