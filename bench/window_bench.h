// What the program does in its own windows, timed inside the process: it is linked like the wizard,
// with everything real but the main function.
#pragma once

#include <chrono>
#include <string>

#include "platform/control.h"

namespace korventally::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Clicks on the control as the mouse does, and handles events until there are none left and
/// everything that was painted is on the screen. Returns how long all of that took.
Milliseconds clickAndSettle(const Control& control);
void settle();

/// From the click on each step's "NEXT" until the next step is drawn.
void timeSteps(int runs, const std::string& folder);
/// From the click on "RUN" to the verdict on the screen, with the engine beside this program.
void timeRuns(int runs, const std::string& folder);
/// A list file read for its verdict, as often as told; then the longest that an event had to wait.
void timeScan(int runs, const std::string& file);

}  // namespace korventally::bench
