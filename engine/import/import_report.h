// What a person checks after an import, and what to enter in the wizard.
#pragma once

#include <string>

#include "engine/import/imported_study.h"
#include "engine/import/model_value.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// The text of import.txt. `folder` holds the results; `caseChecksum` is that of case.inp, empty
/// where there is none.
std::string importReport(const ImportedStudy& study, ValueUnit unit, const NativePath& folder,
                         const std::string& caseChecksum);

}  // namespace korventally::engine
