#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korventally::headless {

/// The characters of a UTF-8 text; none when it is malformed.
std::optional<std::u32string> decodeUtf8(std::string_view text);
void appendUtf8(std::string& text, char32_t character);

}  // namespace korventally::headless
