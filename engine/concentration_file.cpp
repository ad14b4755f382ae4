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
#include "engine/zero_row.h"

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

// What the word in place of the values says; nothing when values stand there.
std::optional<HourKind> markIn(std::string_view values) {
  Fields fields = Fields::continuing(values);
  std::string_view word;
  if (!fields.next(word)) return std::nullopt;
  if (word == "calm") return HourKind::kCalm;
  if (word == "missing") return HourKind::kMissing;
  return std::nullopt;
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
    result_.kinds.resize(static_cast<std::size_t>(blocks.end() - blocks.start));
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
    const HourKind kind = takeValues(*hour, values);
    if (isInBlocks(*hour)) result_.kinds[static_cast<std::size_t>(*hour - blocks_.start)] = kind;
  }

  HourKind takeValues(Hour hour, std::string_view values) {
    if (const std::optional<HourKind> mark = markIn(values)) {
      requireNothingBehindMark(values);
      ++(*mark == HourKind::kCalm ? result_.calm : result_.missing);
      return *mark;
    }
    if (!row_.addTo(sumsOf(hour), values)) fail(explainValues(values, receptors_));
    return isZeroRow(values) ? HourKind::kZero : HourKind::kValid;
  }

  void requireNothingBehindMark(std::string_view values) const {
    Fields fields = Fields::continuing(values);
    std::string_view mark, more;
    fields.next(mark);
    if (!fields.next(more)) return;
    fail(" has " + inQuotes(more) + " behind " + inQuotes(mark) +
         "; the word stands in place of all values");
  }

  [[noreturn]] void failOrder(Hour hour) const {
    const std::string dates = dateText(hour) + " after " + dateText(result_.last);
    if (hour == result_.last) fail(" repeats the hour " + dateText(hour));
    if (hour < result_.last) fail(" goes back in time: " + dates);
    fail(" leaves a gap: " + dates);
  }

  bool isInBlocks(Hour hour) const { return hour >= blocks_.start && hour < blocks_.end(); }

  // Where the values of this hour go; those outside the blocks are checked and forgotten.
  std::span<double> sumsOf(Hour hour) {
    if (!isInBlocks(hour)) return outside_;
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
