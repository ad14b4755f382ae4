#include "engine/valid_hours.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

bool isMark(HourKind kind) { return kind == HourKind::kCalm || kind == HourKind::kMissing; }

const char* wordsFor(HourKind kind) {
  if (kind == HourKind::kCalm) return " is marked calm";
  return kind == HourKind::kMissing ? " is marked missing" : " is not marked";
}

[[noreturn]] void failDisagreeing(const SourceGroup& one, HourKind inOne, const SourceGroup& other,
                                  HourKind inOther, const std::string& hour) {
  throw Fault("The hour " + hour + wordsFor(inOne) + " in the file " + one.file + ", but" +
              wordsFor(inOther) + " in the file " + other.file +
              ". Calm and missing hours are those of the weather: all files must mark the same.");
}

// Makes `kinds` what both agree on.
void agree(const Case& theCase, const Blocks& blocks, std::size_t group,
           const std::vector<HourKind>& own, std::vector<HourKind>& kinds) {
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (own[i] == kinds[i]) continue;
    if (isMark(own[i]) || isMark(kinds[i])) {
      failDisagreeing(theCase.groups.front(), kinds[i], theCase.groups[group], own[i],
                      blocks.nameOfHour(blocks.start + static_cast<Hour>(i)));
    }
    kinds[i] = HourKind::kValid;
  }
}

std::uint64_t count(const std::vector<HourKind>& kinds, HourKind kind) {
  return static_cast<std::uint64_t>(std::ranges::count(kinds, kind));
}

}  // namespace

RunHours agreeOnHours(const Case& theCase, const Blocks& blocks,
                      const std::vector<GroupSums>& groups) {
  RunHours hours;
  hours.kinds = groups.front().kinds;
  for (std::size_t group = 1; group < groups.size(); ++group) {
    agree(theCase, blocks, group, groups[group].kinds, hours.kinds);
  }
  hours.calm = count(hours.kinds, HourKind::kCalm);
  hours.missing = count(hours.kinds, HourKind::kMissing);
  hours.zero = count(hours.kinds, HourKind::kZero);
  if (blocks.annual && hours.calm + hours.missing == hours.kinds.size()) {
    throw Fault("All " + counted(hours.kinds.size(), "hour") +
                " of the run are marked calm or missing: there is no annual average.");
  }
  return hours;
}

std::vector<std::int64_t> validHoursOfBlocks(const Blocks& blocks, const RunHours& hours,
                                             bool zeroIsCalm) {
  std::vector<std::int64_t> valid(static_cast<std::size_t>(blocks.count), blocks.hours);
  for (std::size_t i = 0; i < hours.kinds.size(); ++i) {
    const HourKind kind = hours.kinds[i];
    if (!isMark(kind) && !(zeroIsCalm && kind == HourKind::kZero)) continue;
    --valid[i / static_cast<std::size_t>(blocks.hours)];
  }
  return valid;
}

std::int64_t divisorOf(const Blocks& blocks, std::int64_t validHours) {
  if (blocks.annual) return std::max<std::int64_t>(validHours, 1);
  // Of 0.75 N + 0.4 + 0.5, the whole part.
  return std::max(validHours, (15 * blocks.hours + 18) / 20);
}

}  // namespace korventally::engine
