#pragma once

#include <string>

namespace korventally::win32 {

/// The path counted from a drive or server, or from "\\.\" for a device, as Windows tidies it up.
std::wstring resolve(const std::wstring& path);
/// The path for Windows' wide functions: as it stands, so that Windows tidies it up as it
/// does for every program, unless it is too long for that.
std::wstring nativePath(const std::string& path);
/// The path counted from a drive or server, for messages.
std::string fullPath(const std::string& path);
/// The folder of Windows' own programs, without a final backslash; empty when Windows does
/// not tell.
std::wstring systemDirectory();

}  // namespace korventally::win32
