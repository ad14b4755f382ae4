#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/calendar.h"
#include "engine/fault.h"
#include "engine/import/known_rows.h"
#include "engine/import/model_data.h"
#include "engine/import/model_header.h"
#include "engine/import/model_value.h"
#include "engine/import/row_layout.h"
#include "engine/import/series.h"
#include "engine/import/series_set.h"
#include "engine/line_reader.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kLongestLine = 1000;

// Whether a value is zero, whatever else may be wrong with it.
bool isZero(std::string_view field) {
  const std::string_view mantissa = field.substr(0, field.find('E'));
  return mantissa.find_first_not_of(" -+.0") == mantissa.npos;
}

// Rows come in blocks: one hour, or another average, of one group at all receptors. The first block
// tells how many receptors there are and where; all others must repeat it.
class FormattedReader {
 public:
  FormattedReader(InputFile& file, const Reading& reading)
      : file_(file),
        lines_(file, kLongestLine),
        reading_(reading),
        series_(file, reading, "line") {}

  ModelData read() {
    while (takeAhead() || takeNext()) {
    }
    endBlock();
    refuseIncomplete();
    return series_.finish(std::move(data_));
  }

 private:
  // The next row without a search for its end, if it is one as nearly all of them are: of the same
  // hour, the next receptor, as long as the others, and with a value as it is mostly printed.
  bool takeAhead() {
    if (current_ == nullptr || count_ == 0 || row_ == count_) return false;
    const std::string_view ahead = lines_.ahead();
    const std::size_t size = known_.rowSize();
    if (ahead.size() < size + 2) return false;
    const std::size_t end = ahead[size] == '\r' ? size + 1 : size;
    const std::string_view row = ahead.substr(0, size);
    if (ahead[end] != '\n' || !isOfBlock(layout_->key(row)) || !known_.isAt(row, row_, *layout_) ||
        !current_->addFixed(RowLayout::value(row))) {
      return false;
    }
    lines_.skipLine(end + 1);
    ++row_;
    return true;
  }

  bool takeNext() {
    std::string_view line;
    if (!lines_.next(line)) return false;
    take(line);
    return true;
  }

  bool isOfBlock(std::string_view key) const {
    return isEqual(key_.data(), key.data(), RowLayout::kKey);
  }

  void take(std::string_view line) {
    if (line.starts_with('*')) {
      endBlock();
      header_.take(line);
    } else {
      takeRow(line);
    }
  }

  void takeRow(std::string_view row) {
    if (!layout_) learnLayout(row);
    if (row.size() < layout_->shortest()) refuse(" is cut short or no row of the model.");
    const std::string_view key = layout_->key(row);
    if (row_ == count_ || key_.empty() || !isOfBlock(key)) beginBlock(key);
    if (count_ == 0) {
      learnPlace(row);
    } else if (!known_.isAt(row, row_, *layout_)) {
      refusePlace(row);
    }
    if (current_ != nullptr) {
      addValue(RowLayout::value(row));
    } else if (series_.isWitness()) {
      hasValue_ = hasValue_ || !isZero(RowLayout::value(row));
    }
    ++row_;
  }

  void learnLayout(std::string_view row) {
    layout_ = RowLayout::of(row);
    const std::string objection = header_.objection(layout_ ? layout_->values() : 1);
    if (!objection.empty()) throw Fault("The file " + file_.name() + objection);
    if (!layout_) {
      refuse(" is no row of a dispersion model's hourly output (a POSTFILE of 1-hour averages).");
    }
    data_.firstRow = lines_.lineNumber();
  }

  void beginBlock(std::string_view key) {
    endBlock();
    if (reading_.mayGiveUp()) throw Fault("Given up.");
    key_ = key;
    row_ = 0;
    current_ = series_.choose(RowLayout::average(key), RowLayout::group(key));
    hasValue_ = false;
    if (current_ == nullptr) return;
    const std::string objection = current_->begin(hourOf(key), lines_.lineNumber());
    if (!objection.empty()) refuse(objection);
  }

  Hour hourOf(std::string_view key) const {
    const std::string_view date = RowLayout::date(key);
    const auto number = parseWhole(date);
    const std::optional<Hour> hour = number ? hourOfModel(*number) : std::nullopt;
    if (!hour) refuse(noHourText(date));
    return *hour;
  }

  void endBlock() {
    if (key_.empty()) return;
    if (count_ == 0) count_ = row_;
    if (row_ != count_) refuseRowCount();
    if (current_ != nullptr) {
      current_->endHour(reading_.zeroMark,
                        [&] { return reading_.header(current_->group(), data_.places); });
    } else {
      series_.leaveOut(row_);
      if (hasValue_) series_.hasValues(hourOf(key_));
    }
    key_.clear();
    current_ = nullptr;
  }

  void learnPlace(std::string_view row) {
    data_.places.push_back({std::string(withoutBlanks(RowLayout::x(row))),
                            std::string(withoutBlanks(RowLayout::y(row))),
                            std::string(withoutBlanks(layout_->network(row)))});
    const ModelPlace& place = data_.places.back();
    requireCoordinate(place.x, 2);
    requireCoordinate(place.y, 16);
    known_.learn(row);
  }

  void requireCoordinate(const std::string& text, std::size_t column) const {
    if (coordinateIn(text)) return;
    const bool stars = text.find('*') != text.npos;
    refuse(", column " + std::to_string(column) +
           (stars ? " has stars in place of a coordinate: it did not fit there. Let the model run "
                    "with smaller coordinates."
                  : ": " + inQuotes(text) + " is no coordinate."));
  }

  void addValue(std::string_view field) {
    switch (current_->add(field)) {
      case ValueFault::kNone:
        return;
      case ValueFault::kStars:
        refuseValue(
            " has stars in place of a value: it did not fit there. Let the model write it "
            "with FILEFORM EXP.");
      case ValueFault::kNegative:
        refuseValue(": the value " + std::string(withoutBlanks(field)) + " is negative, " +
                    kOfCredits);
      case ValueFault::kTooLarge:
        refuseValue(": the value " + std::string(withoutBlanks(field)) + kOfLargeValues);
      case ValueFault::kNoNumber:
        refuseValue(": " + inQuotes(withoutBlanks(field)) + " is no number.");
    }
  }

  [[noreturn]] void refuse(const std::string& what) const {
    throw Fault(file_.named(lines_.lineNumber()) + what);
  }

  [[noreturn]] void refuseValue(const std::string& what) const {
    refuse(", column " + std::to_string(RowLayout::kValueColumn) + what);
  }

  [[noreturn]] void refusePlace(std::string_view row) const {
    const ModelPlace& place = data_.places[row_];
    const std::string number = std::to_string(row_ + 1);
    const auto inWords = [](std::string_view x, std::string_view y, std::string_view network) {
      const std::string gap(network.empty() ? "" : " ");
      return std::string(x) + ", " + std::string(y) + gap + std::string(network);
    };
    const std::string known = inWords(place.x, place.y, place.network);
    const std::string here =
        inWords(withoutBlanks(RowLayout::x(row)), withoutBlanks(RowLayout::y(row)),
                withoutBlanks(layout_->network(row)));
    if (known == here) {
      refuse(" gives receptor " + number + " other heights than line " +
             std::to_string(data_.firstRow + row_) + " does.");
    }
    refuse(" has receptor " + number + " at " + here + ", but line " +
           std::to_string(data_.firstRow + row_) + " has it at " + known +
           ". Every hour must hold the same receptors in the same order.");
  }

  [[noreturn]] void refuseRowCount() const {
    refuse(": " + counted(row_, "row") + " of " + std::string(RowLayout::group(key_)) + " " +
           std::string(RowLayout::date(key_)) + " instead of " + std::to_string(count_) +
           ", one for each receptor. Was the file cut short?");
  }

  void refuseIncomplete() const {
    if (!layout_) {
      throw Fault("The file " + file_.name() +
                  (header_.any() ? " has a header and no rows: did the model's run end early?"
                                 : " is empty."));
    }
    if (!lines_.complete()) refuse(" has no line end: the file was cut short.");
  }

  InputFile& file_;
  LineReader lines_;
  const Reading& reading_;
  ModelHeader header_;
  std::optional<RowLayout> layout_;
  ModelData data_;
  KnownRows known_;
  SeriesSet series_;
  std::string key_;            // of the block; empty between blocks
  Series* current_ = nullptr;  // where its values go; none when they are left out
  bool hasValue_ = false;      // one that is left out was not zero
  std::size_t row_ = 0;        // in the block
  std::size_t count_ = 0;      // of rows in a block; 0 within the first
};

}  // namespace

ModelData readFormatted(InputFile& file, const Reading& reading) {
  return FormattedReader(file, reading).read();
}

}  // namespace korventally::engine
