// Makes a case of a dispersion model's files: concentration files, receptors, a control file.
#pragma once

#include <functional>
#include <string>

#include "engine/import/options.h"

namespace korventally::engine {

/// Does the import and returns its report, which also stands in import.txt. Either all results are
/// in the folder afterwards or none. Throws Fault. `progress` is called on the calling thread,
/// about once a second, and must not throw.
std::string importModel(const ImportOptions& options,
                        const std::function<void(const std::string&)>& progress);

}  // namespace korventally::engine
