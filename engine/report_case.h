// The head of the list file: title, date, and the case as it was given.
#pragma once

#include "engine/control_file.h"
#include "engine/list_file.h"

namespace korventally::engine {

void reportTitle(ListFile& list);
void reportCase(const Case& theCase, ListFile& list);

}  // namespace korventally::engine
