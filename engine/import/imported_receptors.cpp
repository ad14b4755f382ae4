#include "engine/import/imported_receptors.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/columns.h"
#include "engine/fault.h"
#include "engine/file_beginning.h"
#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/import/receptor_names.h"
#include "engine/model_file.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

bool isSame(const ModelPlace& one, const ModelPlace& other) {
  return parseDecimal(one.x) == parseDecimal(other.x) &&
         parseDecimal(one.y) == parseDecimal(other.y);
}

std::string textOf(const ListedReceptors& source, std::size_t receptor) {
  const ModelPlace& place = source.places[receptor];
  return "at " + place.x + ", " + place.y + " in the file " + source.file + ", line " +
         std::to_string(source.lines[receptor]);
}

void requireSame(const ListedReceptors& one, const ListedReceptors& other) {
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

ListedReceptors receptorsOf(const ModelData& data) {
  ListedReceptors receptors{data.file, data.places, {}, {}};
  for (std::size_t i = 0; i < data.places.size(); ++i) {
    receptors.lines.push_back(data.firstRow + i);
  }
  return receptors;
}

bool isFormattedModelFile(const NativePath& path) {
  const std::string beginning = beginningOf(path);
  return !objectionToModelFile("", beginning).empty() && !isUnformattedModelFile(beginning);
}

ModelData readPlaces(const NativePath& path) {
  InputFile file(path);
  Reading reading;
  reading.wants = [](std::string_view) { return false; };
  reading.mayGiveUp = [] { return false; };
  return readFormatted(file, reading);
}

}  // namespace

ListedReceptors readListedReceptors(const NativePath& path) {
  if (isFormattedModelFile(path)) return receptorsOf(readPlaces(path));
  InputFile file(path);
  const Receptors receptors = readReceptors(file, 1);
  ListedReceptors listed{receptors.file, {}, {}, {}};
  for (const Receptor& receptor : receptors.list) {
    listed.places.push_back({shortest(receptor.x), shortest(receptor.y), ""});
    listed.lines.push_back(receptor.line);
    listed.names.push_back(receptor.id);
  }
  return listed;
}

void agreeOnReceptors(ImportedStudy& study, const std::optional<ListedReceptors>& listed) {
  std::vector<ListedReceptors> all;
  if (listed) all.push_back(*listed);
  for (const ModelData& data : study.files) {
    if (data.places.empty()) continue;
    all.push_back(receptorsOf(data));
    requireSame(all.front(), all.back());
    if (study.places.empty()) study.places = data.places;
  }
  if (all.empty()) return;
  if (study.places.empty()) study.places = all.front().places;
  study.receptors = all.front().names.empty() ? receptorNames(study.places) : all.front().names;
}

void requireReceptors(const ImportedStudy& study, const std::string& file) {
  if (!study.places.empty()) return;
  throw Fault("The file " + file +
              " is unformatted and does not tell its receptors. Give a formatted file of the same "
              "run beside it, or a list of X, Y, ID with --receptors FILE.");
}

}  // namespace korventally::engine
