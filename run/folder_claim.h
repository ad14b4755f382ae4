#pragma once

#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/result.h"

namespace korventally {

/// The right to run a case in a working directory, which one window at a time can have: two would
/// delete and overwrite each other's files. It is a file in that directory, so that windows on
/// other computers see it too, and it goes when this object or its process does. kBusy while
/// somebody else has it; a file of that name that was made by nobody of us stays as it is.
Result<std::unique_ptr<HeldFile>> claimFolder(const std::string& workDir);

/// Who has it, as the file says; empty when that cannot be read.
std::string holderOfClaim(const std::string& workDir);

}  // namespace korventally
