// The first bytes of a file, which tell what it is.
#pragma once

#include <cstddef>
#include <string>

#include "engine/system_files.h"

namespace korventally::engine {

/// Up to so many bytes. Throws Fault.
std::string beginningOf(const NativePath& path, std::size_t size = 4096);

}  // namespace korventally::engine
