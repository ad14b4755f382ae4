// The concentration files and the receptor file of an imported case.
#pragma once

#include <string>
#include <vector>

#include "engine/import/imported_study.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// What a concentration file of this group begins with: the mark, the names of the receptors.
std::string concentrationHeader(const std::string& group,
                                const std::vector<std::string>& receptors);

/// True when the group's one part file is the concentration file already.
bool isComplete(const ImportedStudy& study, const ImportedGroup& group);

/// Joins the group's part files into `to`, with hours of zeros marked as the study has them. Throws
/// Fault.
void joinParts(const ImportedStudy& study, const ImportedGroup& group, const NativePath& to);

/// X, Y and ID of each receptor, in the model's order.
std::string receptorFileText(const ImportedStudy& study);

}  // namespace korventally::engine
