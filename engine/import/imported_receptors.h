// The receptors that all files of an import agree on.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/import/imported_study.h"
#include "engine/import/model_data.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// Receptors and where they stand in a file.
struct ListedReceptors {
  std::string file;
  std::vector<ModelPlace> places;
  std::vector<std::uint64_t> lines;
  std::vector<std::string> names;  ///< empty where the file is a model's, which has none
};

/// The receptors of a file with X, Y and ID, or of one of a model's formatted files. Throws Fault.
ListedReceptors readListedReceptors(const NativePath& path);

/// Takes the receptors of the first file that has any, and the names of `listed` where that has
/// some. Throws Fault with both files, lines and places where two differ.
void agreeOnReceptors(ImportedStudy& study, const std::optional<ListedReceptors>& listed);

/// Throws Fault when there are none, which an unformatted `file` needs.
void requireReceptors(const ImportedStudy& study, const std::string& file);

}  // namespace korventally::engine
