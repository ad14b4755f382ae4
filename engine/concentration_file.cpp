#include "engine/concentration_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/column_names.h"
#include "engine/column_sums.h"
#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/line_reader.h"
#include "engine/model_file.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"
#include "engine/text.h"
#include "engine/value_row.h"
#include "engine/zero_row.h"

namespace korventally::engine {
namespace {

// Room for a date and generously written values, also of many more receptors than are asked for: a
// file that has them is to be read, or told from one that is no concentration file at all.
std::size_t longestLine(std::size_t receptors) {
  return std::max(std::size_t{16} << 20, 4096 + 64 * receptors);
}

// How many values there are, when all of them are numbers.
std::optional<std::size_t> countNumbers(std::string_view values) {
  Fields fields = Fields::continuing(values);
  std::size_t count = 0;
  for (std::string_view field; fields.next(field); ++count) {
    if (!parseModelNumber(field)) return std::nullopt;
  }
  return count;
}

// The four fields at the beginning of a line, and behind them the separator and the values.
struct DateFields {
  std::array<std::int64_t, 4> parts = {};
  std::string_view values;
};

std::optional<DateFields> takeDate(std::string_view line) {
  Fields fields(line);
  DateFields date;
  for (std::int64_t& part : date.parts) {
    std::string_view field;
    if (!fields.next(field)) return std::nullopt;
    const std::optional<std::int32_t> number = parseWhole(field);
    if (!number) return std::nullopt;
    part = *number;
  }
  date.values = fields.rest();
  return date;
}

// What the word in place of the values says; nothing when values stand there.
std::optional<HourKind> markIn(std::string_view values) {
  const std::size_t first = std::min(values.find_first_not_of(" \t,"), values.size());
  if (first == values.size() || (values[first] != 'c' && values[first] != 'm')) return std::nullopt;
  Fields fields = Fields::continuing(values);
  std::string_view word;
  if (!fields.next(word)) return std::nullopt;
  if (word == "calm") return HourKind::kCalm;
  if (word == "missing") return HourKind::kMissing;
  return std::nullopt;
}

class Reading {
 public:
  Reading(InputFile& file, const Blocks& blocks, const Receptors& receptors, bool judgesReceptors)
      : file_(file),
        blocks_(blocks),
        receptors_(receptors),
        judgesReceptors_(judgesReceptors),
        reader_(file, longestLine(receptors.list.size())) {
    result_.kinds.resize(static_cast<std::size_t>(blocks.end() - blocks.start));
  }

  GroupSums finish(const std::function<bool()>& giveUp) {
    const std::string objection = objectionToModelFile(file_.name(), reader_.peek());
    if (!objection.empty()) throw Fault(objection);
    for (std::string_view line; reader_.next(line);) {
      if (!reader_.complete()) fail(" has no line end; the file may be cut short");
      if (line.starts_with('#') && !sums_) {
        if (const std::string wrong = names_.take(line); !wrong.empty()) fail(wrong);
        continue;
      }
      if (!sums_) bind();
      addHour(line);
      if (result_.hours % 64 == 0 && giveUp()) return {};
    }
    requireAllHours();
    result_.sums = sums_->take();
    result_.bytes = file_.size();
    result_.lines = reader_.lineNumber();
    return std::move(result_);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw Fault(file_.named(reader_.lineNumber()) + what + ".");
  }

  // Whose values the columns are is known once the top of the file was read.
  void bind() {
    result_.namesReceptors = !names_.empty();
    if (names_.empty() && receptors_.isRanked) {
      throw Fault("The file " + receptors_.file +
                  " is a ranked list (format 2), in no order that " +
                  "tells whose the values of the file " + file_.name() +
                  " are. Name their receptors at the top of that file, in a line \"# receptors: " +
                  "R01 R02 ...\", or give the receptors in format 1, in the order of the values.");
    }
    result_.columns = names_.empty() ? receptors_.list.size() : names_.count();
    std::vector<std::size_t> columnOf;
    if (!names_.empty()) columnOf = names_.columnsOf(receptors_, file_.name());
    sums_.emplace(blocks_, result_.columns, std::move(columnOf));
  }

  void addHour(std::string_view line) {
    const std::optional<DateFields> date = takeDate(line);
    const std::optional<Hour> hour = date ? hourOf(*date) : std::nullopt;
    if (!hour) fail(" does not begin with year, month, day and hour of a real date");
    noteClock(date->parts[3]);
    if (result_.hours == 0) {
      result_.first = *hour;
    } else if (*hour != result_.last + 1) {
      failOrder(*hour);
    }
    result_.last = *hour;
    ++result_.hours;
    const HourKind kind = takeValues(*hour, date->values);
    if (isInBlocks(*hour)) result_.kinds[static_cast<std::size_t>(*hour - blocks_.start)] = kind;
  }

  std::optional<Hour> hourOf(const DateFields& date) const {
    const auto& [year, month, day, hour] = date.parts;
    if (year < kEarliestYear) {
      fail(" gives the year as " + std::to_string(year) + "; it must be " +
           std::to_string(kEarliestYear) + " or later, in four digits");
    }
    return hourFromDate(year, month, day, hour);
  }

  // Hour 0 and hour 24 are the two names of one hour: a file that has both was pieced together.
  void noteClock(std::int64_t hour) {
    if (hour != 0 && hour != 24) return;
    const HourCount count = hour == 0 ? HourCount::kFrom0To23 : HourCount::kFrom1To24;
    if (result_.hourCount == HourCount::kUnknown) {
      result_.hourCount = count;
      clockLine_ = reader_.lineNumber();
    }
    if (count == result_.hourCount) return;
    fail(" has an hour " + std::to_string(hour) + ", but line " + std::to_string(clockLine_) +
         " an hour " + (hour == 0 ? "24" : "0") +
         "; a file counts the hours of a day either from 0 to 23 or from 1 to 24");
  }

  HourKind takeValues(Hour hour, std::string_view values) {
    if (const std::optional<HourKind> mark = markIn(values)) {
      requireNothingBehindMark(values);
      ++(*mark == HourKind::kCalm ? result_.calm : result_.missing);
      return *mark;
    }
    if (!row_.addTo(sums_->of(hour), values)) failValues(values);
    ++rows_;
    return isZeroRow(values) ? HourKind::kZero : HourKind::kValid;
  }

  [[noreturn]] void failValues(std::string_view values) const {
    const std::optional<std::size_t> count = countNumbers(values);
    const bool ofReceptors = judgesReceptors_ && names_.empty() && rows_ == 0;
    if (!ofReceptors || !count || *count == result_.columns) {
      fail(explainValues(values, result_.columns));
    }
    throw Fault(
        "The file " + receptors_.file + " lists " + counted(receptors_.list.size(), "receptor") +
        ", but the file " + file_.name() + ", line " + std::to_string(reader_.lineNumber()) +
        ", holds " + counted(*count, "value") + ": they do not belong together. A line " +
        "\"# receptors: R01 R02 ...\" at the top of a concentration file names those of its " +
        "values, and lets a receptor file choose among them.");
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
    const std::string dates = nameOf(hour) + " after " + nameOf(result_.last);
    if (hour == result_.last) fail(" repeats the hour " + nameOf(hour));
    if (hour < result_.last) fail(" goes back in time: " + dates);
    fail(" leaves a gap: " + dates);
  }

  std::string nameOf(Hour hour) const { return dateText(hour, result_.hourCount); }

  bool isInBlocks(Hour hour) const { return hour >= blocks_.start && hour < blocks_.end(); }

  void requireAllHours() const {
    const std::string file = "The file " + file_.name() + " ";
    if (result_.hours == 0) throw Fault(file + "holds no hour.");
    if (result_.first <= blocks_.start && result_.last + 1 >= blocks_.end()) return;
    throw Fault(file + "holds the hours " + nameOf(result_.first) + " to " + nameOf(result_.last) +
                ", but the run needs " + nameOf(blocks_.start) + " to " +
                nameOf(blocks_.end() - 1) + "." + adviceOnClock());
  }

  // A run that was set up for the other clock asks for one hour too many.
  std::string adviceOnClock() const {
    const HourCount count = result_.hourCount;
    const std::int64_t first = hourOfDay(result_.first, count);
    const std::int64_t last = hourOfDay(result_.last, count);
    if (count == HourCount::kFrom1To24 && first == 0 && result_.first == blocks_.start + 1) {
      return " The file counts the hours of a day from 1 to 24: a day begins at hour 1.";
    }
    if (count == HourCount::kFrom0To23 && last == 23 && result_.last + 2 == blocks_.end()) {
      return " The file counts the hours of a day from 0 to 23: a day begins at hour 0.";
    }
    return {};
  }

  InputFile& file_;
  const Blocks& blocks_;
  const Receptors& receptors_;
  const bool judgesReceptors_;
  LineReader reader_;
  ColumnNames names_;
  std::optional<ColumnSums> sums_;  // nothing as long as the top of the file is read
  ValueRow row_;
  std::uint64_t rows_ = 0;       // lines with values
  std::uint64_t clockLine_ = 0;  // that told how hours are counted
  GroupSums result_;
};

}  // namespace

GroupSums readConcentrations(InputFile& file, const Blocks& blocks, const Receptors& receptors,
                             bool judgesReceptors, const std::function<bool()>& giveUp) {
  return Reading(file, blocks, receptors, judgesReceptors).finish(giveUp);
}

}  // namespace korventally::engine
