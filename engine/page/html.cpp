#include "engine/page/html.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "engine/system_files.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kNoCharacter = "\xEF\xBF\xBD";

unsigned byteAt(std::string_view text, std::size_t place) {
  return place < text.size() ? static_cast<unsigned char>(text[place]) : 0u;
}

// How many bytes the character here takes; 0 where none begins. Neither surrogates nor longer forms
// than needed are characters.
std::size_t lengthOfCharacter(std::string_view text) {
  const unsigned first = byteAt(text, 0), second = byteAt(text, 1);
  if (first < 0x80) return first >= 0x20 && first != 0x7F ? 1 : 0;
  const std::size_t length = first >= 0xF5 ? 0 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || length == 0) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(text, i) & 0xC0u) != 0x80) return 0;
  }
  const bool outside = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                       (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
  return outside ? 0 : length;
}

std::string_view markup(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

}  // namespace

std::string escaped(std::string_view text) {
  const std::string whole = utf8FromText(text);
  std::string result;
  for (std::string_view rest = whole; !rest.empty();) {
    const std::size_t length = lengthOfCharacter(rest);
    const std::string_view special = markup(rest.front());
    result += length == 0 ? kNoCharacter : special.empty() ? rest.substr(0, length) : special;
    rest.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

std::string sentence(std::string_view text) {
  const std::string cubic = replaced(escaped(text), "g/m**3", "g/m\xC2\xB3");
  return replaced(cubic, "ug/m\xC2\xB3", "\xC2\xB5g/m\xC2\xB3");
}

std::string element(std::string_view tag, std::string_view content) {
  std::string text = "<" + std::string(tag) + ">";
  text += content;
  return text + "</" + std::string(tag.substr(0, tag.find(' '))) + ">";
}

}  // namespace korventally::engine
