// The concentration files and the receptor file of an imported case.
#pragma once

#include <string>

#include "engine/import/imported_study.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// Writes the hours of a group's series into `part`, calm and missing ones marked, below lines that
/// name the receptors. Throws Fault.
void writeConcentrations(const ImportedStudy& study, const ImportedGroup& group,
                         const NativePath& part);

/// X, Y and ID of each receptor, in the model's order.
std::string receptorFileText(const ImportedStudy& study);

}  // namespace korventally::engine
