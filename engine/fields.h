// Fields of a line of a data file: parted by blanks or tabs, by a comma, or by both.
#pragma once

#include <string_view>

namespace korventally::engine {

class Fields {
 public:
  /// The fields of a whole line; blanks in front and behind do not count.
  explicit Fields(std::string_view line) : rest_(line) {}

  /// The fields of the end of a line that begins with the separator behind an earlier field.
  static Fields continuing(std::string_view rest);

  /// The next field, or false at the end of the line. Two commas in a row, or a comma at either end
  /// of the line, enclose an empty field: no value is ever skipped in silence.
  bool next(std::string_view& field);

  /// What next() has not delivered yet, from the separator on.
  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
  bool atStart_ = true;
};

/// True for a line that holds nothing but blanks and tabs.
bool isBlank(std::string_view line);

}  // namespace korventally::engine
