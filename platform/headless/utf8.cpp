#include "platform/headless/utf8.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korventally::headless {
namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// The number of bytes of a character, from its first one; 0 for a byte that starts none.
std::size_t lengthFrom(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

char byteOf(char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); }

}  // namespace

std::optional<std::u32string> decodeUtf8(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = lengthFrom(first);
    if (length == 0 || length > text.size()) return std::nullopt;
    char32_t character = length == 1 ? first : first & (0xFFu >> (length + 1));
    for (const char byte : text.substr(1, length - 1)) {
      if (!isContinuation(byte)) return std::nullopt;
      character = character << 6 | (static_cast<unsigned char>(byte) & 0x3Fu);
    }
    characters += character;
    text.remove_prefix(length);
  }
  return characters;
}

void appendUtf8(std::string& text, char32_t character) {
  const auto continuation = [&](int shift) { text += byteOf(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    text += byteOf(character);
  } else if (character < 0x800) {
    text += byteOf(0xC0 | character >> 6);
    continuation(0);
  } else if (character < 0x10000) {
    text += byteOf(0xE0 | character >> 12);
    continuation(6);
    continuation(0);
  } else {
    text += byteOf(0xF0 | character >> 18);
    continuation(12);
    continuation(6);
    continuation(0);
  }
}

}  // namespace korventally::headless
