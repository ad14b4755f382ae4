#include "engine/clock.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/fault.h"

namespace korventally::engine {
namespace {

constexpr std::int64_t kDay = 24;

std::string rangeText(HourCount count) {
  return count == HourCount::kFrom1To24 ? "from 1 to 24" : "from 0 to 23";
}

// "00" to "24".
std::string hourText(Hour hour, HourCount count) { return dateText(hour, count).substr(11); }

bool isOnClock(const Blocks& blocks, HourCount count) {
  const std::int64_t hour = hourOfDay(blocks.start, count);
  if (blocks.hours % kDay == 0) return hour == 0;
  if (kDay % blocks.hours == 0) return hour % blocks.hours == 0;
  return hour == 0 && blocks.count == 1;
}

}  // namespace

HourCount agreeOnClock(const Case& theCase, const std::vector<GroupSums>& groups) {
  HourCount count = HourCount::kUnknown;
  std::size_t first = 0;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const HourCount own = groups[i].hourCount;
    if (own == HourCount::kUnknown || own == count) continue;
    if (count != HourCount::kUnknown) {
      throw Fault("The file " + theCase.groups[first].file + " counts the hours of a day " +
                  rangeText(count) + ", but the file " + theCase.groups[i].file + " " +
                  rangeText(own) + "; all files must count alike.");
    }
    count = own;
    first = i;
  }
  return count;
}

std::string clockText(HourCount count) {
  if (count == HourCount::kUnknown) return "hours counted 0 to 23 or 1 to 24, both would fit";
  return count == HourCount::kFrom1To24 ? "hours counted 1 to 24" : "hours counted 0 to 23";
}

bool isOnClock(const Blocks& blocks) {
  if (blocks.annual) return true;
  if (blocks.hourCount != HourCount::kUnknown) return isOnClock(blocks, blocks.hourCount);
  return isOnClock(blocks, HourCount::kFrom0To23) || isOnClock(blocks, HourCount::kFrom1To24);
}

std::vector<std::string> linesOfClock(const Blocks& blocks) {
  if (isOnClock(blocks)) return {};
  std::vector<std::string> lines = {"  Off the clock: the first average begins at hour " +
                                    hourText(blocks.start, blocks.hourCount) + "."};
  if (kDay % blocks.hours != 0 && blocks.hours % kDay != 0) {
    lines.emplace_back("  Averages of so many hours do not fit into days.");
    return lines;
  }
  const bool from1 = blocks.hourCount == HourCount::kFrom1To24;
  std::string begin = from1 ? "hour 01" : "hour 00";
  if (blocks.hourCount == HourCount::kUnknown) begin += " (counted 0 to 23) or 01 (1 to 24)";
  if (blocks.hours < kDay) begin += ", or a multiple of the averaging period later";
  lines.push_back("  To have calendar days and their parts, start the run at " + begin + ".");
  return lines;
}

}  // namespace korventally::engine
