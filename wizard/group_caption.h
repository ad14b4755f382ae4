#pragma once

#include <cstdint>
#include <string>

#include "platform/frame.h"

namespace korventally {

/// The caption of the page of a source group. It says which page was shown last, and out of how
/// many groups, so it is read back when the step is opened again.
struct GroupCaption {
  std::string kind;        ///< "ALL SOURCES", "FACILITY", "OTHER" or another text
  std::int32_t slot = 0;   ///< 0 when the kind is not recognised
  std::int32_t count = 0;  ///< for an OTHER page the number of groups, else 0
};

/// Sets the frame's caption for the page of a slot (1 or more) out of `count` groups.
void SetGroupCaption(Frame& frame, std::int32_t slot, std::int32_t count);

/// Reads a caption back.
GroupCaption readGroupCaption(const std::string& caption);

}  // namespace korventally
