#include "engine/report_hours.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/judgement.h"
#include "engine/report_results.h"
#include "engine/text.h"
#include "engine/valid_hours.h"

namespace korventally::engine {
namespace {

std::string markedText(std::uint64_t calm, std::uint64_t missing) {
  if (calm + missing == 0) return "no hour marked";
  return counted(calm, "hour") + " calm, " + counted(missing, "hour") + " missing";
}

std::string emptyText(std::uint64_t averages) {
  return averages == 1 ? "1 average has no valid hour and is zero."
                       : grouped(averages) + " averages have no valid hour and are zero.";
}

}  // namespace

std::string markedText(const GroupSums& sums) { return markedText(sums.calm, sums.missing); }

std::vector<std::string> linesOfMarkedHours(const Blocks& blocks, const RunHours& hours,
                                            const Averages& averages) {
  if (hours.calm + hours.missing == 0) return {};
  std::vector<std::string> lines = {"  Of the " + counted(hours.kinds.size(), "hour") + " used, " +
                                    markedText(hours.calm, hours.missing) + ": left out."};
  if (blocks.annual) {
    lines.push_back("  The sum is divided by the " +
                    counted(static_cast<std::uint64_t>(averages.validHours(0)), "valid hour") +
                    ".");
    return lines;
  }
  lines.push_back("  Sums are divided by the number of valid hours, but by " +
                  std::to_string(divisorOf(blocks, 0)) + " at least.");
  std::uint64_t empty = 0;
  for (std::size_t block = 0; block < averages.blocks(); ++block) {
    empty += averages.validHours(block) == 0 ? 1 : 0;
  }
  if (empty > 0) lines.push_back("  " + emptyText(empty));
  return lines;
}

std::string warningOfZeroHours(const Names& names, const RunHours& hours, const Averages& ifCalm,
                               const Judgement& judgement) {
  if (hours.zero == 0) return {};
  const bool one = hours.zero == 1;
  const std::string warning =
      (one ? "1 hour is" : grouped(hours.zero) + " hours are") +
      " zero at every receptor of every group and not marked calm or missing; " +
      (one ? "it is" : "they are") + " counted as valid. If " + (one ? "it was" : "they were") +
      " calm, ";
  const Judgement other = judge(names.theCase, names.blocks, ifCalm, [](const Place&) {});
  const Place& now = judgement.maxima.front().highest;
  const Place& then = other.maxima.front().highest;
  const std::uint64_t exceedances = judgement.exceedances.count;
  if (now.value == then.value && exceedances == other.exceedances.count) {
    return warning + "neither the highest average nor the number of exceedances would change.";
  }
  return warning + "the highest average of " + names.theCase.groups.front().name + " would be " +
         fixed(then.value, 4) + " instead of " + fixed(now.value, 4) + " ug/m**3, with " +
         counted(other.exceedances.count, "exceedance") + " instead of " + grouped(exceedances) +
         ".";
}

}  // namespace korventally::engine
