// How the concentration files count the hours of a day, and whether averages follow that clock.
#pragma once

#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"

namespace korventally::engine {

/// The one way in which all files count; files that do not show it go with the others. Throws Fault
/// when two files differ: the values of different hours would stand beside each other.
HourCount agreeOnClock(const Case& theCase, const std::vector<GroupSums>& groups);

/// "hours counted 1 to 24".
std::string clockText(HourCount count);

/// True when each block begins at the first hour of a day, or at a whole number of its own lengths
/// after it. Where the files do not show how they count, either way will do.
bool isOnClock(const Blocks& blocks);

/// Lines for the section on the averages when they are off the clock; annual ones never are.
std::vector<std::string> linesOfClock(const Blocks& blocks);

}  // namespace korventally::engine
