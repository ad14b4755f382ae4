#include "engine/import/series_set.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "engine/fault.h"
#include "engine/import/model_data.h"
#include "engine/import/series.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kHourly = "1-HR";
constexpr std::string_view kAverages = " averages";

}  // namespace

Series* SeriesSet::choose(std::string_view average, std::string_view group) {
  isWitness_ = average == kHourly && !reading_.wants(group);
  if (average != kHourly) {
    leftOut_ = &rows_[std::string(average).append(kAverages)];
    return nullptr;
  }
  if (isWitness_) {
    leftOut_ = &rows_["group " + std::string(group)];
    return nullptr;
  }
  const auto place = std::ranges::find(groups_, group);
  const auto index = static_cast<std::size_t>(place - groups_.begin());
  if (place == groups_.end()) {
    groups_.emplace_back(group);
    series_.push_back(std::make_unique<Series>(groups_.back(), file_, lineWord_, reading_.newPart(),
                                               reading_.unit));
  }
  return series_[index].get();
}

ModelData SeriesSet::finish(ModelData data) {
  const bool averagesOnly = !rows_.empty() && std::ranges::all_of(rows_, [](const auto& kind) {
    return kind.first.ends_with(kAverages);
  });
  if (series_.empty() && averagesOnly) {
    throw Fault("The file " + file_.name() + " holds " + rows_.begin()->first +
                " instead of hours: let the model write a POSTFILE of 1-hour averages.");
  }
  for (const auto& series : series_) data.series.push_back(series->finish());
  data.leftOut = std::move(rows_);
  data.hoursWithValues = std::move(hoursWithValues_);
  data.file = file_.name();
  data.bytes = file_.size();
  return data;
}

}  // namespace korventally::engine
