// The page beside the list file, for those who would rather look than read: one file, complete in
// itself, with nothing to load and nothing to run.
//
// It is written as markup that is well-formed XML too, so that every tag is known to be closed.
#pragma once

#include <string>

#include "engine/page/results.h"
#include "engine/side_file.h"

namespace korventally::engine {

/// The first line. Browsers need the whole of it, as it is; until then they show its first words.
inline constexpr Mark kPageMark{"<!DOCTYPE html>", "Unfinished page",
                                "<!-- KorvenTally: what a run came to, in pictures -->\n"};
static_assert(kPageMark.whole.size() == kPageMark.unfinished.size());

/// Writes the page from its first line to its last. `runOn`: the moment of the run, as the list
/// file gives it. Faults are the file's problem.
void writePage(const Results& results, const std::string& runOn, SideFile& file);

}  // namespace korventally::engine
