#pragma once

#include <string>
#include <string_view>

namespace korventally::win32 {

/// Text is UTF-8 above the platform and UTF-16 below it. What is broken on one side becomes U+FFFD
/// on the other.
std::wstring toWide(std::string_view text);
std::string fromWide(std::wstring_view text);

}  // namespace korventally::win32
