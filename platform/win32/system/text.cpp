#include "platform/win32/system/text.h"

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files.h"
#include "platform/result.h"

namespace korventally {
namespace win32 {
namespace {

/// None when `flags` forbid what the bytes hold.
std::optional<std::wstring> decode(UINT codePage, DWORD flags, std::string_view bytes) {
  if (bytes.empty()) return std::wstring();
  const int size = static_cast<int>(bytes.size());
  const int needed = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
  if (needed <= 0) return std::nullopt;
  std::wstring text(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), needed);
  return text;
}

std::optional<std::string> encode(UINT codePage, DWORD flags, std::wstring_view text) {
  if (text.empty()) return std::string();
  const int size = static_cast<int>(text.size());
  const int needed =
      WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  if (needed <= 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), size, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

/// Two code pages that can be Windows' hold every character, and refuse the flag.
DWORD strictFlags(UINT codePage) {
  constexpr UINT kGb18030 = 54936;
  return codePage == CP_UTF8 || codePage == kGb18030 ? 0 : WC_NO_BEST_FIT_CHARS;
}

/// Only text that comes back unchanged has arrived: this catches substitutes of every sort, also a
/// "?" where the code page lacks a character.
std::optional<std::string> encodeFaithfully(std::string_view utf8) {
  const UINT codePage = GetACP();
  const auto text = decode(CP_UTF8, MB_ERR_INVALID_CHARS, utf8);
  if (!text) return std::nullopt;
  auto bytes = encode(codePage, strictFlags(codePage), *text);
  if (!bytes || decode(codePage, 0, *bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace

std::wstring toWide(std::string_view text) { return decode(CP_UTF8, 0, text).value_or(L""); }
std::string fromWide(std::wstring_view text) { return encode(CP_UTF8, 0, text).value_or(""); }

}  // namespace win32

std::string fromAnsi(std::string_view bytes) {
  return win32::fromWide(win32::decode(GetACP(), 0, bytes).value_or(L""));
}

Result<std::string> toAnsi(std::string_view text) {
  if (auto bytes = win32::encodeFaithfully(text)) return std::move(*bytes);
  const std::string codePage = std::to_string(GetACP());
  return Error{ErrorKind::kNotAnsi,
               0,
               "This text contains a character that cannot be written in this system's code page " +
                   codePage + ": \"" + std::string(text) + "\".",
               {}};
}

}  // namespace korventally
