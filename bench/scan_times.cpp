#include <windows.h>
// Needs the types of the header above.
#include <psapi.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "bench/window_bench.h"
#include "run/verdict.h"

namespace korventally::bench {
namespace {

constexpr UINT kAreYouThere = WM_APP;
Clock::time_point lastHandled;
Milliseconds longestWait{0};

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message != kAreYouThere) return DefWindowProcW(window, message, first, second);
  const auto now = Clock::now();
  longestWait = std::max<Milliseconds>(longestWait, now - lastHandled);
  lastHandled = now;
  return 0;
}

HWND windowThatListens() {
  WNDCLASSW type{};
  type.lpfnWndProc = onMessage;
  type.lpszClassName = L"Listens";
  RegisterClassW(&type);
  return CreateWindowW(L"Listens", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
}

void read(const std::string& file) {
  if (readVerdict(file).ok()) return;
  std::fprintf(stderr, "the list file cannot be read\n");
  std::exit(1);
}

/// A second thread has something for the window at every moment; the time from one of its messages
/// that is handled to the next is how long the window was deaf.
Milliseconds longestSilence(const std::string& file) {
  HWND window = windowThatListens();
  std::atomic<bool> over = false;
  lastHandled = Clock::now();
  std::thread user([&] {
    while (!over) {
      PostMessageW(window, kAreYouThere, 0, 0);
      Sleep(1);
    }
  });
  read(file);
  over = true;
  user.join();
  longestWait = std::max<Milliseconds>(longestWait, Clock::now() - lastHandled);
  DestroyWindow(window);
  return longestWait;
}

/// What all threads of this process were busy, the system's share included.
double busyMilliseconds() {
  FILETIME created, ended, system, user;
  GetProcessTimes(GetCurrentProcess(), &created, &ended, &system, &user);
  const auto of = [](const FILETIME& time) {
    return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime) / 1e4;
  };
  return of(system) + of(user);
}

std::size_t peakMemory() {
  PROCESS_MEMORY_COUNTERS memory{};
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  return memory.PeakWorkingSetSize;
}

}  // namespace

void timeScan(int runs, const std::string& file) {
  const double busy = busyMilliseconds();
  const auto begin = Clock::now();
  for (int run = 0; run < runs; ++run) read(file);
  const Milliseconds passed = Clock::now() - begin;
  std::printf("clock %.6f\nbusy %.6f\n", passed.count() / runs, (busyMilliseconds() - busy) / runs);
  std::printf("silence %.3f\npeak %zu\n", longestSilence(file).count(), peakMemory());
}

}  // namespace korventally::bench
