#include "engine/import/model_header.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace korventally::engine {
namespace {

// The titles above hold the user's words, which may be anything; these lines hold the model's.
constexpr std::string_view kHighest = "*         PLOT FILE OF ";
constexpr std::string_view kLabels = "*        X ";
constexpr std::string_view kConcentration = "AVERAGE CONC";

}  // namespace

void ModelHeader::take(std::string_view line) {
  any_ = true;
  if (line.starts_with(kHighest)) highest_ = true;
  if (!line.starts_with(kLabels)) return;
  labels_ = line;
  concentration_ = line.find(kConcentration) != line.npos;
}

std::string ModelHeader::objection(std::size_t values) const {
  if (highest_) {
    return " holds each receptor's highest values (a plot file), not the values of every hour: let "
           "the model write a POSTFILE of 1-hour averages.";
  }
  if (!labels_.empty() && !concentration_) {
    return " holds deposition without concentration: its header has no column AVERAGE CONC.";
  }
  if (labels_.empty() && values > 1) {
    return " has " + std::to_string(values) +
           " values in a row and no header that tells which of them is the concentration: let the "
           "model write it with its header.";
  }
  return {};
}

}  // namespace korventally::engine
