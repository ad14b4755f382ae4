#include "engine/import/imported_receptors.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/columns.h"
#include "engine/fault.h"
#include "engine/file_beginning.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/model_value.h"
#include "engine/import/options.h"
#include "engine/import/receptor_names.h"
#include "engine/model_file.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

// Receptors and where they stand in a file, for messages.
struct Source {
  std::string file;
  std::vector<ModelPlace> places;
  std::vector<std::uint64_t> lines;
};

bool isSame(const ModelPlace& one, const ModelPlace& other) {
  return parseDecimal(one.x) == parseDecimal(other.x) &&
         parseDecimal(one.y) == parseDecimal(other.y);
}

std::string textOf(const Source& source, std::size_t receptor) {
  const ModelPlace& place = source.places[receptor];
  return "at " + place.x + ", " + place.y + " in the file " + source.file + ", line " +
         std::to_string(source.lines[receptor]);
}

void requireSame(const Source& one, const Source& other) {
  if (one.places.size() != other.places.size()) {
    throw Fault("The file " + other.file + " has " + counted(other.places.size(), "receptor") +
                ", but the file " + one.file + " has " + std::to_string(one.places.size()) +
                ". All files of a case need the same receptors in the same order.");
  }
  for (std::size_t i = 0; i < one.places.size(); ++i) {
    if (isSame(one.places[i], other.places[i])) continue;
    throw Fault("Receptor " + std::to_string(i + 1) + " stands " + textOf(other, i) + ", but " +
                textOf(one, i) +
                ". All files of a case need the same receptors in the same order.");
  }
}

Source sourceOf(const ModelData& data) {
  Source source{data.file, data.places, {}};
  for (std::size_t i = 0; i < data.places.size(); ++i) source.lines.push_back(data.firstRow + i);
  return source;
}

bool isFormattedModelFile(const NativePath& path) {
  const std::string beginning = beginningOf(path);
  return !objectionToModelFile("", beginning).empty() && !isUnformattedModelFile(beginning);
}

ModelData readPlaces(const NativePath& path) {
  InputFile file(path);
  const auto never = [] { return false; };
  return readFormatted(file, {ValueUnit::kMicrograms, [](std::string_view) { return false; },
                              [] { return NativePath(); }, never});
}

// Receptors with names of their own, or those of one of the model's formatted files.
Source readSource(const NativePath& path, std::vector<std::string>& names) {
  if (isFormattedModelFile(path)) return sourceOf(readPlaces(path));
  InputFile file(path);
  const Receptors receptors = readReceptors(file, 1);
  Source source{receptors.file, {}, {}};
  for (const Receptor& receptor : receptors.list) {
    source.places.push_back({shortest(receptor.x), shortest(receptor.y), ""});
    source.lines.push_back(receptor.line);
    names.push_back(receptor.id);
  }
  return source;
}

}  // namespace

void agreeOnReceptors(ImportedStudy& study, const ImportOptions& options) {
  std::vector<Source> sources;
  std::vector<std::string> names;
  if (options.receptors) {
    sources.push_back(readSource(*options.receptors, names));
  }
  for (const ModelData& data : study.files) {
    if (data.places.empty()) continue;
    sources.push_back(sourceOf(data));
    requireSame(sources.front(), sources.back());
    if (study.places.empty()) study.places = data.places;
  }
  if (sources.empty()) return;
  if (study.places.empty()) study.places = sources.front().places;
  study.receptors = names.empty() ? receptorNames(study.places) : names;
}

void requireReceptors(const ImportedStudy& study, const std::string& file) {
  if (!study.places.empty()) return;
  throw Fault("The file " + file +
              " is unformatted and does not tell its receptors. Give a formatted file of the same "
              "run beside it, or a list of X, Y, ID with --receptors FILE.");
}

}  // namespace korventally::engine
