// The hours of one source group in one of the model's files, on their way into a part file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/import/model_value.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// An hour that is zero at every receptor, and where its line stands in the part file.
struct ZeroHour {
  Hour hour = 0;
  std::optional<HourKind> mark;  ///< that the line has in place of its values
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
};

/// The largest value of a group, in the model's unit.
struct LargestValue {
  double value = -1;  ///< below zero: none yet
  std::size_t receptor = 0;
  Hour hour = 0;
};

/// What a series came to. Memory: a double per receptor and a line of zero hours.
struct SeriesFacts {
  std::string group;
  std::string file;             ///< where it came from, for messages
  std::uint64_t firstLine = 0;  ///< where the first hour begins, and the last one
  std::uint64_t lastLine = 0;
  const char* lineWord = "";  ///< what those count: "line" or "record"
  NativePath part;            ///< its hours, one line each as in a concentration file
  std::uint64_t begin = 0;    ///< of the first hour's line in it
  Hour first = 0;             ///< named by its end, so hour 24 is hour 0 of the next day
  Hour last = 0;
  std::uint64_t hours = 0;
  std::vector<ZeroHour> zeroHours;
  std::string zeros;         ///< the values of such an hour, as its line has them
  std::vector<double> sums;  ///< of each receptor's values, in the model's unit
  LargestValue largest;
};

/// The hour that a model names YYMMDDHH, with HH from 01 to 24 for its end; years 50 to 99 are
/// 1950 to 1999. Nothing when there is no such date. The hour is counted as hourFromDate() does.
std::optional<Hour> hourOfModel(std::int64_t yymmddhh);

/// What to say, behind the name of the place, of a date that hourOfModel() does not take.
std::string noHourText(std::string_view date);

/// "2010-07-16 24": an hour as the model names it.
std::string modelHourText(Hour hour);

/// "2010 07 16 24": an hour as a line of a concentration file begins.
std::string concentrationDate(Hour hour);

/// " calm" or " missing", in place of values.
std::string markText(HourKind mark);

class Series {
 public:
  /// `part` is created. Throws Fault.
  Series(std::string group, const InputFile& file, const char* lineWord, const NativePath& part,
         ValueUnit unit);

  /// Begins an hour at this line or record. Returns what is wrong, to follow the name of the place;
  /// empty when nothing is.
  std::string begin(Hour hour, std::uint64_t line);

  /// Adds the value of the next receptor.
  ValueFault add(std::string_view field) {
    double value = 0;
    const ValueFault fault = copyValue(field, unit_, line_, value);
    count(value);
    return fault;
  }
  /// The same for a value that is printed as F13.5; false, and nothing is added, for another.
  bool addFixed(std::string_view field) {
    double value = 0;
    if (!copyFixedValue(field, unit_, line_, value)) return false;
    count(value);
    return true;
  }
  ValueFault add(double value) {
    const ValueFault fault = copyValue(value, unit_, line_);
    count(value);
    return fault;
  }

  /// `mark`: in place of the values if all of them are zero. `header` stands in front of the first
  /// hour.
  void endHour(const std::function<std::optional<HourKind>(Hour)>& mark,
               const std::function<std::string()>& header);

  const std::string& group() const { return facts_.group; }

  /// Puts everything into the part file.
  SeriesFacts finish();

 private:
  void count(double value) {
    if (receptor_ == facts_.sums.size()) facts_.sums.push_back(0);
    facts_.sums[receptor_] += value;
    if (value > highest_) {
      highest_ = value;
      highestAt_ = receptor_;
    }
    ++receptor_;
  }
  void noteZeros(std::optional<HourKind> mark);
  void write();

  SeriesFacts facts_;
  OutputFile file_;
  ValueUnit unit_;
  Hour hour_ = 0;
  std::string line_;           // of this hour and those not written yet
  std::size_t lineBegin_ = 0;  // of this hour in it
  std::uint64_t written_ = 0;
  std::size_t receptor_ = 0;
  double highest_ = 0;  // of this hour
  std::size_t highestAt_ = 0;
};

}  // namespace korventally::engine
