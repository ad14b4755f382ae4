// The head of the list file: title, date, and the case as it was given.
#pragma once

#include <string>

#include "engine/control_file.h"
#include "engine/list_file.h"

namespace korventally::engine {

void reportTitle(ListFile& list);
/// `controlFile` as it was given to the engine.
void reportCase(const Case& theCase, const std::string& controlFile, ListFile& list);

}  // namespace korventally::engine
