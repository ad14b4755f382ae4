#include "engine/import/series.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/import/model_value.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kBuffer = 256 * std::size_t{1024};

}  // namespace

std::string modelHourText(Hour hour) { return dateText(hour, HourCount::kFrom1To24); }

std::string concentrationDate(Hour hour) {
  std::string text = modelHourText(hour);
  for (char& c : text) {
    if (c == '-') c = ' ';
  }
  return text;
}

std::string markText(HourKind mark) { return mark == HourKind::kCalm ? " calm" : " missing"; }

std::optional<Hour> hourOfModel(std::int64_t yymmddhh) {
  const std::int64_t hour = yymmddhh % 100, year = yymmddhh / 1000000;
  if (hour < 1 || yymmddhh < 0) return {};
  return hourFromDate(year + (year < 50 ? 2000 : 1900), yymmddhh / 10000 % 100,
                      yymmddhh / 100 % 100, hour);
}

std::string noHourText(std::string_view date) {
  return ": " + inQuotes(date) + " is no hour (YYMMDDHH, HH from 01 to 24).";
}

Series::Series(std::string group, const InputFile& file, const char* lineWord,
               const NativePath& part, ValueUnit unit)
    : file_(part, Creation::kNew), unit_(unit) {
  facts_.group = std::move(group);
  facts_.file = file.name();
  facts_.lineWord = lineWord;
  facts_.part = part;
}

std::string Series::begin(Hour hour, std::uint64_t line) {
  if (facts_.hours > 0 && hour != facts_.last + 1) {
    const std::string follows = " goes on with " + modelHourText(hour) + " behind " +
                                modelHourText(facts_.last) + " of group " + facts_.group;
    if (hour == facts_.last) return follows + ": this hour comes twice.";
    if (hour < facts_.last) return follows + ": a step back.";
    return follows + ": a gap of " + hoursText(hour - facts_.last - 1) +
           ". A case needs every hour of its run.";
  }
  if (facts_.hours == 0) {
    facts_.first = hour;
    facts_.firstLine = line;
  }
  facts_.lastLine = line;
  facts_.last = hour_ = hour;
  receptor_ = 0;
  highest_ = 0;
  lineBegin_ = line_.size();
  line_ += concentrationDate(hour);
  return {};
}

void Series::endHour(const std::function<std::optional<HourKind>(Hour)>& mark,
                     const std::function<std::string()>& header) {
  if (facts_.hours == 0) {
    const std::string text = header();
    line_.insert(0, text);
    facts_.begin = lineBegin_ = text.size();
  }
  ++facts_.hours;
  if (highest_ == 0) noteZeros(mark(hour_));
  line_ += '\n';
  if (highest_ > facts_.largest.value) facts_.largest = {highest_, highestAt_, hour_};
  if (line_.size() >= kBuffer) write();
}

void Series::noteZeros(std::optional<HourKind> mark) {
  const std::size_t values = lineBegin_ + concentrationDate(hour_).size();
  if (facts_.zeros.empty()) facts_.zeros = line_.substr(values);
  if (mark) line_.replace(values, line_.npos, markText(*mark));
  facts_.zeroHours.push_back({hour_, mark, written_ + lineBegin_, written_ + line_.size() + 1});
}

SeriesFacts Series::finish() {
  write();
  return std::move(facts_);
}

void Series::write() {
  file_.append(line_);
  written_ += line_.size();
  line_.clear();
}

}  // namespace korventally::engine
