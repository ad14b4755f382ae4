#include "platform/win32/system/path.h"

#include <windows.h>

#include <string>
#include <string_view>

#include "platform/win32/system/text.h"

namespace korventally::win32 {
namespace {

bool isAbsolute(const std::wstring& path) {
  return path.starts_with(L"\\\\") || (path.size() > 2 && path[1] == L':' && path[2] == L'\\');
}

constexpr std::wstring_view kServer = LR"(UNC\)";

}  // namespace

bool isLiteral(const std::wstring& path) { return path.starts_with(kLiteral); }

std::wstring resolve(const std::wstring& path) {
  const DWORD needed = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(needed, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), needed, full.data(), nullptr));
  return full.size() < needed ? full : path;
}

std::wstring withoutLiteral(const std::wstring& path) {
  if (!isLiteral(path)) return path;
  const std::wstring rest = path.substr(kLiteral.size());
  return rest.starts_with(kServer) ? LR"(\\)" + rest.substr(kServer.size()) : rest;
}

std::wstring nativePath(const std::string& path) {
  std::wstring plain = toWide(path);
  if (plain.size() + 1 < MAX_PATH) return plain;
  // A path with the prefix is taken literally, so it is tidied up first.
  std::wstring full = resolve(plain);
  if (isLiteral(full) || full.starts_with(L"\\\\.\\")) return full;
  const std::wstring prefix(kLiteral);
  if (full.starts_with(L"\\\\")) return prefix + std::wstring(kServer) + full.substr(2);
  return isAbsolute(full) ? prefix + full : plain;
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
