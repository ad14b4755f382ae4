// Text for the page: UTF-8, with nothing in it that a browser could take for markup.
#pragma once

#include <string>
#include <string_view>

namespace korventally::engine {

/// Text in the code page of the system, as every name and path here is, for use between tags and in
/// attributes. What is no character becomes U+FFFD.
std::string escaped(std::string_view text);

/// The same for a sentence of the engine's own, with its units as a page can show them.
std::string sentence(std::string_view text);

/// "<tag>content</tag>"; `tag` may have attributes. The content is markup.
std::string element(std::string_view tag, std::string_view content);

}  // namespace korventally::engine
