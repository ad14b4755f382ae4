// File names with "*" and "?" in them, which the command interpreter of Windows leaves to programs.
#pragma once

#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

/// The files that a name means: itself, or where it has "*" or "?" in its last part and there is no
/// such file, all whose names fit, in the order of their names. Throws Fault when none fits.
std::vector<NativePath> filesNamed(const NativePath& name);

}  // namespace korventally::engine
