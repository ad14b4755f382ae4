#pragma once

#include <string>
#include <vector>

namespace korventally {

/// What speaks against a name for the list file, in a sentence for the user; empty when nothing
/// does. A run deletes the file of that name, so it must be a plain file name within the working
/// directory: no path, device, stream, wildcard or control character, no name of the run's own
/// files, nor of a file that the case reads (`inputs`, full paths).
std::string objectionToListFile(const std::string& workDir, const std::string& name,
                                const std::vector<std::string>& inputs);

}  // namespace korventally
