// Reads the concentration files of all groups, several at a time.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/crew.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// One thread per processor, at most one per file. `done` is called on the calling thread, in the
/// order of the files, once the sums of that file and of all before it are known. Of several
/// faults the one of the first file is thrown, whichever thread met its fault first. `patience` is
/// told the file that is waited for.
std::vector<GroupSums> readGroups(std::span<const std::unique_ptr<InputFile>> files,
                                  const Blocks& blocks, const Receptors& receptors,
                                  const std::function<void(std::size_t, const GroupSums&)>& done,
                                  const Patience& patience = {});

}  // namespace korventally::engine
