// The lines that begin with "*" in a dispersion model's formatted file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korventally::engine {

class ModelHeader {
 public:
  /// Takes a header line. Several headers may follow each other, one per group and average.
  void take(std::string_view line);

  /// True once a header was taken.
  bool any() const { return any_; }

  /// Why the rows below are no hourly concentrations, to follow "The file F"; empty when the header
  /// does not tell. `values` is how many values a row has.
  std::string objection(std::size_t values) const;

 private:
  bool any_ = false;
  bool highest_ = false;
  bool concentration_ = false;
  std::string labels_;  // of the columns
};

}  // namespace korventally::engine
