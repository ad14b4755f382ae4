#pragma once

#include <windows.h>

namespace korventally::win32 {

/// A function of a library that is loaded already, or none where Windows is too old to have it.
template <typename Function>
Function systemFunction(const wchar_t* library, const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(library), name);
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

}  // namespace korventally::win32
