#pragma once

#include <string>

namespace korventally::win32 {

/// The path for the system's wide functions: as it stands, so that the system tidies it up as it
/// does for every program, unless it is too long for that.
std::wstring nativePath(const std::string& path);
/// The path counted from a drive or server, for messages.
std::string fullPath(const std::string& path);
/// The folder of the system's own programs, without a final backslash; empty when the system does
/// not tell.
std::wstring systemDirectory();

}  // namespace korventally::win32
