#pragma once

#include <string>
#include <utility>
#include <vector>

namespace korventally::win32 {

/// A name and its value.
using Variable = std::pair<std::wstring, std::wstring>;

/// The environment of this program as a block for a child process, with the given variables added
/// or replaced.
std::wstring environmentWith(const std::vector<Variable>& additions);

}  // namespace korventally::win32
