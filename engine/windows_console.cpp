#include <windows.h>

#include <cstdint>
#include <string>

#include "engine/console.h"

namespace korventally::engine {
namespace {

HANDLE asHandle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

// A program may have been given numbers that are no handles of it, or not yet.
std::intptr_t openOne(DWORD which) {
  const HANDLE handle = GetStdHandle(which);
  if (handle == nullptr || handle == INVALID_HANDLE_VALUE) return -1;
  if (GetFileType(handle) == FILE_TYPE_UNKNOWN) return -1;
  return reinterpret_cast<std::intptr_t>(handle);
}

bool isConsole(std::intptr_t handle) {
  DWORD mode = 0;
  return handle != -1 && GetConsoleMode(asHandle(handle), &mode) != 0;
}

// A console has a code page of its own, so it gets wide characters; files and pipes get the bytes.
void write(std::intptr_t handle, const std::string& line) {
  if (handle == -1) return;
  const std::string text = line + "\r\n";
  DWORD written = 0;
  if (!isConsole(handle)) {
    WriteFile(asHandle(handle), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    return;
  }
  std::wstring wide(text.size(), L' ');
  const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                       wide.data(), static_cast<int>(wide.size()));
  WriteConsoleW(asHandle(handle), wide.data(), static_cast<DWORD>(size), &written, nullptr);
}

}  // namespace

Console::Console() : output_(openOne(STD_OUTPUT_HANDLE)), error_(openOne(STD_ERROR_HANDLE)) {}

void Console::say(const std::string& line) const { write(output_, line); }

void Console::sayInPassing(const std::string& line) const {
  if (isConsole(output_)) say(line);
}

void Console::complain(const std::string& line) const { write(error_, line); }

}  // namespace korventally::engine
