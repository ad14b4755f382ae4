#include "engine/concentration_file.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/line_reader.h"
#include "engine/system_files.h"
#include "engine/text.h"
#include "engine/value_row.h"

namespace korventally::engine {
namespace {

// Room for a date and generously written values; a longer line is no line of this file.
std::size_t longestLine(std::size_t receptors) { return 4096 + 64 * receptors; }

// The four fields of the date, and behind them, in `rest`, the separator and the values.
std::optional<Hour> takeDate(std::string_view line, std::string_view& rest) {
  Fields fields(line);
  std::int64_t parts[4] = {};
  for (std::int64_t& part : parts) {
    std::string_view field;
    if (!fields.next(field)) return std::nullopt;
    const std::optional<std::int32_t> number = parseWhole(field);
    if (!number) return std::nullopt;
    part = *number;
  }
  rest = fields.rest();
  return hourFromDate(parts[0], parts[1], parts[2], parts[3]);
}

class Reading {
 public:
  Reading(InputFile& file, const Blocks& blocks, std::size_t receptors)
      : file_(file),
        blocks_(blocks),
        receptors_(receptors),
        reader_(file, longestLine(receptors)),
        outside_(receptors) {
    result_.sums.resize(static_cast<std::size_t>(blocks.count) * receptors);
  }

  GroupSums finish(const std::function<bool()>& giveUp) {
    for (std::string_view line; reader_.next(line);) {
      if (!reader_.complete()) fail(" has no line end; the file may be cut short");
      if (line.starts_with('#') && result_.hours == 0) continue;
      addHour(line);
      if (result_.hours % 64 == 0 && giveUp()) return {};
    }
    requireAllHours();
    result_.bytes = file_.size();
    result_.lines = reader_.lineNumber();
    return std::move(result_);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw Fault(file_.named(reader_.lineNumber()) + what + ".");
  }

  void addHour(std::string_view line) {
    std::string_view values;
    const std::optional<Hour> hour = takeDate(line, values);
    if (!hour) fail(" does not begin with year, month, day and hour of a real date");
    if (result_.hours == 0) {
      result_.first = *hour;
    } else if (*hour != result_.last + 1) {
      failOrder(*hour);
    }
    result_.last = *hour;
    ++result_.hours;
    if (!row_.addTo(sumsOf(*hour), values)) fail(explainValues(values, receptors_));
  }

  [[noreturn]] void failOrder(Hour hour) const {
    const std::string dates = dateText(hour) + " after " + dateText(result_.last);
    if (hour == result_.last) fail(" repeats the hour " + dateText(hour));
    if (hour < result_.last) fail(" goes back in time: " + dates);
    fail(" leaves a gap: " + dates);
  }

  // Where the values of this hour go; those outside the blocks are checked and forgotten.
  std::span<double> sumsOf(Hour hour) {
    if (hour < blocks_.start || hour >= blocks_.end()) return outside_;
    const auto block = static_cast<std::size_t>((hour - blocks_.start) / blocks_.hours);
    return std::span(result_.sums).subspan(block * receptors_, receptors_);
  }

  void requireAllHours() const {
    const std::string file = "The file " + file_.name() + " ";
    if (result_.hours == 0) throw Fault(file + "holds no hour.");
    if (result_.first <= blocks_.start && result_.last + 1 >= blocks_.end()) return;
    throw Fault(file + "holds the hours " + dateText(result_.first) + " to " +
                dateText(result_.last) + ", but the run needs " + dateText(blocks_.start) + " to " +
                dateText(blocks_.end() - 1) + ".");
  }

  InputFile& file_;
  const Blocks& blocks_;
  const std::size_t receptors_;
  LineReader reader_;
  ValueRow row_;
  std::vector<double> outside_;
  GroupSums result_;
};

}  // namespace

GroupSums readConcentrations(InputFile& file, const Blocks& blocks, std::size_t receptors,
                             const std::function<bool()>& giveUp) {
  return Reading(file, blocks, receptors).finish(giveUp);
}

}  // namespace korventally::engine
