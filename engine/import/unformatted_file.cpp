#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calendar.h"
#include "engine/fault.h"
#include "engine/import/model_data.h"
#include "engine/import/model_value.h"
#include "engine/import/row_layout.h"
#include "engine/import/series.h"
#include "engine/import/series_set.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kHead = 16;  // date, hours of the average, group
constexpr std::size_t kMostKinds = 4;

template <typename Number>
Number numberAt(const char* bytes) {
  static_assert(std::endian::native == std::endian::little, "records are little-endian");
  Number number;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

// Records of equal length: their length, the head, values of eight bytes, their length again.
class UnformattedReader {
 public:
  UnformattedReader(InputFile& file, const Reading& reading, std::size_t receptors)
      : file_(file), reading_(reading), receptors_(receptors), series_(file, reading, "record") {}

  ModelData read() {
    while (nextRecord()) takeRecord();
    if (record_ == 0) throw Fault("The file " + file_.name() + " is empty.");
    return series_.finish({});
  }

 private:
  // Reads so many bytes; fewer only at the end of the file.
  std::size_t fill(char* to, std::size_t size) {
    std::size_t filled = 0;
    while (filled < size) {
      const std::size_t count = file_.read(to + filled, size - filled);
      if (count == 0) break;
      filled += count;
    }
    return filled;
  }

  bool nextRecord() {
    char length[4];
    const std::size_t got = fill(length, sizeof length);
    if (got == 0) return false;
    ++record_;
    if (got < sizeof length) refuseCut();
    size_ = numberAt<std::uint32_t>(length);
    requireLength();
    bytes_.resize(size_ + sizeof length);
    if (fill(bytes_.data(), bytes_.size()) < bytes_.size()) refuseCut();
    if (numberAt<std::uint32_t>(bytes_.data() + size_) != size_) {
      refuse(" does not end with its own length: the file is damaged or of another kind.");
    }
    return true;
  }

  void requireLength() const {
    const std::size_t values = size_ <= kHead ? 0 : (size_ - kHead) / 8;
    for (std::size_t kinds = 1; kinds <= kMostKinds; ++kinds) {
      if (size_ == kHead + 8 * receptors_ * kinds) return;
    }
    refuse(" has " + std::to_string(values) + " values, which do not fit the " +
           counted(receptors_, "receptor") + " of this import.");
  }

  void takeRecord() {
    if (reading_.mayGiveUp()) throw Fault("Given up.");
    const char* record = bytes_.data();
    const std::string average = std::to_string(numberAt<std::int32_t>(record + 4)) + "-HR";
    Series* series = series_.choose(average, withoutBlanks({record + 8, 8}));
    if (series != nullptr) return takeHour(*series);
    series_.leaveOut(1);
    if (series_.isWitness() && hasValue()) series_.hasValues(hour());
  }

  double valueOf(std::size_t receptor) const {
    return numberAt<double>(bytes_.data() + kHead + 8 * receptor);
  }

  bool hasValue() const {
    for (std::size_t i = 0; i < receptors_; ++i) {
      if (valueOf(i) != 0) return true;
    }
    return false;
  }

  Hour hour() const {
    const auto date = numberAt<std::int32_t>(bytes_.data());
    const std::optional<Hour> hour = hourOfModel(date);
    if (!hour) refuse(noHourText(std::to_string(date)));
    return *hour;
  }

  void takeHour(Series& series) {
    const std::string objection = series.begin(hour(), record_);
    if (!objection.empty()) refuse(objection);
    // Of several kinds of values the concentrations of all receptors stand first.
    for (std::size_t i = 0; i < receptors_; ++i) {
      const ValueFault fault = series.add(valueOf(i));
      if (fault != ValueFault::kNone) refuseValue(fault, i);
    }
    series.endHour(reading_.zeroMark, [&] { return reading_.header(series.group(), {}); });
  }

  [[noreturn]] void refuse(const std::string& what) const {
    throw Fault("The file " + file_.name() + ", record " + std::to_string(record_) + what);
  }

  [[noreturn]] void refuseCut() const { refuse(" ends early: the file was cut short."); }

  [[noreturn]] void refuseValue(ValueFault fault, std::size_t receptor) const {
    const std::string what = fault == ValueFault::kNegative
                                 ? std::string(" is negative, ") + kOfCredits
                             : fault == ValueFault::kTooLarge ? kOfLargeValues
                                                              : " is no number.";
    refuse(", receptor " + std::to_string(receptor + 1) + " has a value that" + what);
  }

  InputFile& file_;
  const Reading& reading_;
  const std::size_t receptors_;
  std::vector<char> bytes_;
  std::size_t size_ = 0;
  std::uint64_t record_ = 0;
  SeriesSet series_;
};

}  // namespace

ModelData readUnformatted(InputFile& file, const Reading& reading, std::size_t receptors) {
  return UnformattedReader(file, reading, receptors).read();
}

}  // namespace korventally::engine
