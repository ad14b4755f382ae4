#pragma once

#include <windows.h>

#include <string>

#include "platform/result.h"

namespace korventally::win32 {

/// The error that a system function left behind, told of the file at `path`. The only place where
/// Windows' numbers become kinds and sentences.
Error systemError(DWORD code, const std::string& path);
Error lastError(const std::string& path);

}  // namespace korventally::win32
