// The rows of a dispersion model's formatted file, by their columns.
//
//     X Y value ... ZELEV [ZHILL ZFLAG]   AVE  GRP       DATE      NET ID
//
// One to four values and one or three heights stand between the place and the average, so where the
// average stands tells how many there are. Names may hold blanks: nothing is cut at them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace korventally::engine {

class RowLayout {
 public:
  /// The layout of this row; nothing when it is no row of concurrent values.
  static std::optional<RowLayout> of(std::string_view row);

  std::size_t values() const { return values_; }

  /// The shortest that a row may be: editors strip the blanks of an empty NET ID.
  std::size_t shortest() const { return heightsEnd_ + kKey; }

  static std::string_view x(std::string_view row) { return row.substr(1, kNumber); }
  static std::string_view y(std::string_view row) { return row.substr(15, kNumber); }
  static std::string_view value(std::string_view row) { return row.substr(kPlace + 1, kNumber); }
  std::string_view heights(std::string_view row) const {
    return row.substr(kPlace + kField * values_, heightsEnd_ - kPlace - kField * values_);
  }

  /// Average, group and date together: the same for all rows of one hour of one group.
  std::string_view key(std::string_view row) const { return row.substr(heightsEnd_, kKey); }

  /// NET ID, as far as it was not stripped.
  std::string_view network(std::string_view row) const { return row.substr(shortest()); }

  /// The parts of a key, without blanks around them.
  static std::string_view average(std::string_view key);
  static std::string_view group(std::string_view key);
  static std::string_view date(std::string_view key);

  static constexpr std::size_t kPlace = 28;  // X and Y, up to the values
  static constexpr std::size_t kKey = 28;
  /// The column of the value, from 1 on, as editors count.
  static constexpr std::size_t kValueColumn = 30;

 private:
  static constexpr std::size_t kNumber = 13;
  static constexpr std::size_t kField = 14;

  RowLayout(std::size_t values, std::size_t heightsEnd)
      : values_(values), heightsEnd_(heightsEnd) {}

  std::size_t values_;
  std::size_t heightsEnd_;
};

/// Whether a model calls an average so: "1-HR", "24-HR", "MONTH", "PERIOD", "ANNUAL".
bool isModelAverage(std::string_view text);

/// Text without the blanks around it.
std::string_view withoutBlanks(std::string_view text);

}  // namespace korventally::engine
