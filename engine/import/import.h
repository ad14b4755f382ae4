// Makes a case of a dispersion model's files: concentration files, receptors, a control file.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "engine/import/options.h"

namespace korventally::engine {

/// Told how far the reading is, on the calling thread, each time that it has lasted so long again;
/// must not throw.
struct ImportProgress {
  std::function<void(const std::string&)> say;
  std::chrono::milliseconds interval{1000};
};

/// Does the import and returns its report, which also stands in import.txt. Either all results are
/// in the folder afterwards or none. Throws Fault.
std::string importModel(const ImportOptions& options, const ImportProgress& progress);

}  // namespace korventally::engine
