// The series of one of the model's files: one for each group that is wanted.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calendar.h"
#include "engine/import/model_data.h"
#include "engine/import/series.h"
#include "engine/system_files.h"

namespace korventally::engine {

class SeriesSet {
 public:
  /// `lineWord`: what places in the file are, "line" or "record".
  SeriesSet(const InputFile& file, const Reading& reading, const char* lineWord)
      : file_(file), reading_(reading), lineWord_(lineWord) {}

  /// Where rows of this average and group go; null when they are left out.
  Series* choose(std::string_view average, std::string_view group);

  /// True when the last choice was to leave out hours of a group, which still tell that an hour
  /// was not calm.
  bool isWitness() const { return isWitness_; }

  /// Counts rows of the last choice that were left out.
  void leaveOut(std::uint64_t rows) { *leftOut_ += rows; }

  /// A group that is left out has a value above zero then.
  void hasValues(Hour hour) { hoursWithValues_.insert(hour); }

  /// Throws Fault when the file held averages and no hours. Writes the part files to their ends.
  ModelData finish(ModelData data);

 private:
  const InputFile& file_;
  const Reading& reading_;
  const char* const lineWord_;
  std::vector<std::string> groups_;
  std::vector<std::unique_ptr<Series>> series_;  // of these groups
  std::map<std::string, std::uint64_t> rows_;    // left out
  std::uint64_t* leftOut_ = nullptr;
  bool isWitness_ = false;
  std::set<Hour> hoursWithValues_;
};

}  // namespace korventally::engine
