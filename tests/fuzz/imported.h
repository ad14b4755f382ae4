// What an import of any bytes must come to.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "engine/import/options.h"

namespace korventally::fuzz {

/// Options that the first byte chooses, for this one file.
engine::ImportOptions chosenOptions(std::string_view& bytes);

/// Imports the file. Either the import refuses it, or the engine can read all results, and their
/// values are `total` in all, in the file's unit.
void requireImport(const engine::ImportOptions& options, double (*total)(std::string_view bytes),
                   std::string_view bytes);

}  // namespace korventally::fuzz
