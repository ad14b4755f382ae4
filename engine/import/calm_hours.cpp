#include "engine/import/calm_hours.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calendar.h"
#include "engine/concentration_file.h"
#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/line_reader.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kLongestLine = 1000;
constexpr std::size_t kSurfaceFields = 20;

std::vector<std::string_view> fieldsOf(std::string_view line) {
  Fields fields(line);
  std::vector<std::string_view> all;
  for (std::string_view field; fields.next(field);) all.push_back(field);
  return all;
}

std::optional<HourKind> kindOfMessage(std::string_view line) {
  if (line.find(" I440 ") != line.npos) return HourKind::kCalm;
  if (line.find(" I460 ") != line.npos) return HourKind::kMissing;
  return {};
}

// YYYYMMDDHH.
std::optional<Hour> hourOfMessage(std::string_view field) {
  if (field.size() != 10) return {};
  const auto year = parseWhole(field.substr(0, 4)), month = parseWhole(field.substr(4, 2));
  const auto day = parseWhole(field.substr(6, 2)), hour = parseWhole(field.substr(8, 2));
  if (!year || !month || !day || !hour || *hour < 1) return {};
  return hourFromDate(*year, *month, *day, *hour);
}

// One hour of a surface file. Fields are counted from 1, as the model's guide does.
class SurfaceHour {
 public:
  static std::optional<SurfaceHour> of(const std::vector<std::string_view>& fields) {
    if (fields.size() < kSurfaceFields) return {};
    SurfaceHour hour;
    for (std::size_t i = 0; i < kSurfaceFields; ++i) {
      const auto number = parseDecimal(fields[i]);
      if (!number) return {};
      hour.fields_[i] = *number;
    }
    return hour;
  }

  std::optional<Hour> when() const {
    const auto whole = [&](std::size_t field) { return static_cast<std::int64_t>(at(field)); };
    const std::int64_t year = whole(1);
    if (whole(5) < 1) return {};
    return hourFromDate(year < 50    ? year + 2000
                        : year < 100 ? year + 1900
                                     : year,
                        whole(2), whole(3), whole(5));
  }

  // Calm first: what a calm hour has no value for is not missing.
  HourKind kind() const {
    if (at(kSpeed) == 0) return HourKind::kCalm;
    return isMissing() ? HourKind::kMissing : HourKind::kValid;
  }

 private:
  static constexpr std::size_t kFriction = 7, kConvective = 8, kConvectiveHeight = 10,
                               kMechanicalHeight = 11, kLength = 12, kSpeed = 16, kDirection = 17,
                               kTemperature = 19;

  double at(std::size_t field) const { return fields_[field - 1]; }

  // The model's own limits of each quantity.
  bool isMissing() const {
    const auto outside = [&](std::size_t field, double from, double below) {
      return at(field) < from || at(field) >= below;
    };
    constexpr double kNoLength = -99990;
    const double length = at(kLength);
    return outside(kSpeed, 0, 90) || at(kDirection) > 900 || at(kDirection) <= -9 ||
           at(kTemperature) > 900 || at(kTemperature) <= 0 || length < kNoLength ||
           (length < 0 && (at(kConvectiveHeight) > 90000 || at(kConvectiveHeight) < 0)) ||
           at(kMechanicalHeight) > 90000 || at(kMechanicalHeight) < 0 || outside(kFriction, 0, 9) ||
           (at(kConvective) < 0 && length < 0);
  }

  std::array<double, kSurfaceFields> fields_{};
};

class CalmReader {
 public:
  explicit CalmReader(InputFile& file) : file_(file), lines_(file, kLongestLine) {}

  CalmHours read() {
    std::string_view line;
    while (lines_.next(line)) take(line);
    if (!messages_ && !calms_.first) {
      throw Fault("The file " + file_.name() +
                  " is neither a model's message file (keyword ERRORFIL) nor its surface file: it "
                  "names no hour.");
    }
    calms_.file = file_.name();
    return calms_;
  }

 private:
  void take(std::string_view line) {
    if (const auto kind = kindOfMessage(line)) {
      takeMessage(fieldsOf(line).back(), *kind);
    } else if (line.find("Error Message List") != line.npos) {
      messages_ = true;  // of a run that may have had no calm hour
    } else if (!messages_) {
      takeSurface(line);
    }
  }

  void takeMessage(std::string_view field, HourKind kind) {
    const auto hour = hourOfMessage(field);
    if (!hour) refuse(": " + inQuotes(field) + " is no hour (YYYYMMDDHH).");
    messages_ = true;
    calms_.hours[*hour] = {kind, lines_.lineNumber()};
  }

  // The first line of a surface file is a header; other lines that are no hours are refused.
  void takeSurface(std::string_view line) {
    const auto surface = SurfaceHour::of(fieldsOf(line));
    if (!surface) {
      if (calms_.first && !isBlank(line)) refuse(" is no hour of a surface file.");
      return;
    }
    const auto hour = surface->when();
    if (!hour) refuse(" is no hour of a surface file.");
    if (!calms_.first) calms_.first = hour;
    calms_.last = hour;
    if (surface->kind() != HourKind::kValid) {
      calms_.hours[*hour] = {surface->kind(), lines_.lineNumber()};
    }
  }

  [[noreturn]] void refuse(const std::string& what) const {
    throw Fault(file_.named(lines_.lineNumber()) + what);
  }

  InputFile& file_;
  LineReader lines_;
  CalmHours calms_;
  bool messages_ = false;
};

}  // namespace

CalmHours readCalmHours(InputFile& file) { return CalmReader(file).read(); }

}  // namespace korventally::engine
