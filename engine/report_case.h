// The head of the list file: title, date, and the case as it was given.
#pragma once

#include <string>
#include <vector>

#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/list_file.h"

namespace korventally::engine {

/// `runOn`: the moment of the run, as localTimeText() gives it.
void reportTitle(const std::string& runOn, ListFile& list);
/// `controlFile` as it was given to the engine.
std::vector<Fact> factsOfCase(const Case& theCase, const std::string& controlFile);

}  // namespace korventally::engine
