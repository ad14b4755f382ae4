#pragma once

#include <string>
#include <string_view>

namespace korventally::win32 {

/// What a path begins with that Windows takes as it stands, without tidying it up.
inline constexpr std::wstring_view kLiteral = LR"(\\?\)";
bool isLiteral(const std::wstring& path);
/// The path counted from a drive or server, or from "\\.\" for a device, as Windows tidies it up.
std::wstring resolve(const std::wstring& path);
/// The path without the prefix of a literal one, for programs that do not know it.
std::wstring withoutLiteral(const std::wstring& path);

/// The path for Windows' wide functions: as it stands, so that Windows tidies it up as it
/// does for every program, unless it is too long for that.
std::wstring nativePath(const std::string& path);
/// The path counted from a drive or server, for messages.
std::string fullPath(const std::string& path);
/// The folder of Windows' own programs, without a final backslash; empty when Windows does
/// not tell.
std::wstring systemDirectory();

}  // namespace korventally::win32
