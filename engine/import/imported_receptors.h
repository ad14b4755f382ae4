// The receptors that all files of an import agree on.
#pragma once

#include <string>

#include "engine/import/imported_study.h"
#include "engine/import/options.h"

namespace korventally::engine {

/// Takes the receptors of the first file that has any, and the names of `options.receptors` where
/// that is given. Throws Fault with both files, lines and places where two differ.
void agreeOnReceptors(ImportedStudy& study, const ImportOptions& options);

/// Throws Fault when there are none, which an unformatted `file` needs.
void requireReceptors(const ImportedStudy& study, const std::string& file);

}  // namespace korventally::engine
