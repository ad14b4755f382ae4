// start_timer RUNS PROGRAM...
//
// Starts each program in turns, waits for its first window, and ends it. A line for each start:
// the program's number, milliseconds from its start until the window is shown and the program has
// painted it and waits for the user, peak and private memory in bytes, the window's thread.
#include <windows.h>
// Needs the types of the header above.
#include <psapi.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <ratio>
#include <stdexcept>
#include <string>

#include "bench/mark.h"

namespace {

namespace bench = korventally::bench;

constexpr DWORD kLongest = 60000;

struct Search {
  DWORD process;
  HWND found = nullptr;
};

BOOL CALLBACK isShownBy(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || !IsWindowVisible(window)) return TRUE;
  search.found = window;
  return FALSE;
}

HWND shownWindow(const PROCESS_INFORMATION& program) {
  const ULONGLONG begin = GetTickCount64();
  Search search{program.dwProcessId};
  while (GetTickCount64() - begin < kLongest) {
    EnumWindows(isShownBy, reinterpret_cast<LPARAM>(&search));
    if (search.found != nullptr) return search.found;
    Sleep(1);
  }
  throw std::runtime_error("a program shows no window");
}

BOOL CALLBACK notePainted(HWND window, LPARAM all) {
  const BOOL painted = !GetUpdateRect(window, nullptr, FALSE);
  *reinterpret_cast<BOOL*>(all) &= painted;
  return painted;
}

bool isPainted(HWND window) {
  BOOL all = TRUE;
  notePainted(window, reinterpret_cast<LPARAM>(&all));
  EnumChildWindows(window, notePainted, reinterpret_cast<LPARAM>(&all));
  return all != FALSE;
}

/// What a program answers says nothing of its painting, which comes after all other messages.
void awaitPainting(HWND window) {
  const ULONGLONG begin = GetTickCount64();
  while (!isPainted(window)) {
    if (GetTickCount64() - begin > kLongest) throw std::runtime_error("a window is never painted");
    Sleep(1);
  }
}

PROCESS_INFORMATION start(std::wstring path) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION program{};
  path = L"\"" + path + L"\"";
  if (!CreateProcessW(nullptr, path.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &program)) {
    throw std::runtime_error("a program does not start");
  }
  return program;
}

void measure(int number, const wchar_t* path) {
  bench::markBegin();
  const auto begin = std::chrono::steady_clock::now();
  const PROCESS_INFORMATION program = start(path);
  WaitForInputIdle(program.hProcess, kLongest);
  HWND window = shownWindow(program);
  awaitPainting(window);
  SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kLongest, nullptr);
  const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - begin;
  bench::markEnd();
  PROCESS_MEMORY_COUNTERS memory{};
  GetProcessMemoryInfo(program.hProcess, &memory, sizeof memory);
  std::printf("%d %.1f %llu %llu %lx\n", number, passed.count(),
              static_cast<unsigned long long>(memory.PeakWorkingSetSize),
              static_cast<unsigned long long>(memory.PagefileUsage),
              GetWindowThreadProcessId(window, nullptr));
  std::fflush(stdout);
  TerminateProcess(program.hProcess, 0);
  WaitForSingleObject(program.hProcess, kLongest);
  CloseHandle(program.hThread);
  CloseHandle(program.hProcess);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 3) return 2;
  // As long as there is a window, the desktop stays, and no program has to wait for a new one.
  CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  try {
    for (int run = 0; run < _wtoi(arguments[1]); ++run) {
      for (int number = 2; number < count; ++number) measure(number - 2, arguments[number]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
