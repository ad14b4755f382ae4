#pragma once

#include <string>
#include <vector>

#include "case/basModule.h"
#include "platform/result.h"
#include "platform/window.h"

namespace korventally {

/// Why none of several files, at least two, is opened.
Error tooManyFiles(const std::vector<std::string>& paths);

/// Says which file could not be opened, why, and what to do.
void sayWhyNotOpened(Window& owner, const Error& error);

/// Says which values of a control file the boxes cannot hold, because they follow from others: an
/// area class and standard that its limits do not tell, and the hours of another year. Says nothing
/// when there are none.
void sayWhatCouldNotBeFilled(Window& owner, const AnalysisCase& opened);

}  // namespace korventally
