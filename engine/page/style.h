// How the page looks: light or dark as the reader's system has it, narrow or wide, and on paper.
#pragma once

#include <string_view>

namespace korventally::engine {

extern const std::string_view kStyle;

}  // namespace korventally::engine
