// window_bench steps|run RUNS FOLDER
// window_bench scan RUNS FILE
//
// Paths are full ones, folders with their last backslash. A line for each time that was taken.
#include "bench/window_bench.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/mark.h"
#include "platform/application.h"
#include "platform/control.h"
#include "platform/events.h"
#include "platform/win32/ui/native_lookup.h"

namespace korventally::bench {
namespace {

int runBench(const std::vector<std::string>& arguments) {
  if (arguments.size() != 3) return 2;
  const std::string& what = arguments[0];
  const int runs = std::atoi(arguments[1].c_str());
  if (what == "steps") timeSteps(runs, arguments[2]);
  if (what == "run") timeRuns(runs, arguments[2]);
  if (what == "scan") timeScan(runs, arguments[2]);
  return 0;
}

}  // namespace

/// A pixel of the screen is read last: the display answers when it has drawn what came before.
void settle() {
  do {
    processPendingEvents();
  } while (HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0);
  GdiFlush();
  HDC screen = GetDC(nullptr);
  GetPixel(screen, 0, 0);
  ReleaseDC(nullptr, screen);
}

Milliseconds clickAndSettle(const Control& control) {
  HWND window = win32::nativeHandle(control);
  RECT area;
  GetClientRect(window, &area);
  const LPARAM centre = MAKELPARAM(area.right / 2, area.bottom / 2);
  markBegin();
  const auto begin = Clock::now();
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, centre);
  PostMessageW(window, WM_LBUTTONUP, 0, centre);
  settle();
  const Milliseconds took = Clock::now() - begin;
  markEnd();
  return took;
}

}  // namespace korventally::bench

int main() { return korventally::runApplication(korventally::bench::runBench); }
