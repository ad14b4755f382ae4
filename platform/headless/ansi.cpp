#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/headless/utf8.h"
#include "platform/result.h"

namespace korventally {
namespace {

constexpr char32_t kFirst = 0x80;

/// Windows-1252 from 0x80 to 0x9F; elsewhere byte and character agree. The five bytes that stand
/// for nothing are converted as Windows does, to control characters.
constexpr std::array<char32_t, 32> kTable = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t characterOf(unsigned char byte) {
  return byte >= kFirst && byte < kFirst + kTable.size() ? kTable[byte - kFirst] : byte;
}

/// No best fit: a character that only looks like one of the code page has no byte.
std::optional<char> byteOf(char32_t character) {
  const auto found = std::find(kTable.begin(), kTable.end(), character);
  if (found != kTable.end()) return static_cast<char>(kFirst + (found - kTable.begin()));
  if (character < kFirst || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  return std::nullopt;
}

Error notAnsi(std::string_view text) {
  return {ErrorKind::kNotAnsi, 0,
          "This text contains a character that cannot be written in this system's code page: \"" +
              std::string(text) + "\".",
          ""};
}

}  // namespace

std::string fromAnsi(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    headless::appendUtf8(text, characterOf(static_cast<unsigned char>(byte)));
  }
  return text;
}

Result<std::string> toAnsi(std::string_view text) {
  const auto characters = headless::decodeUtf8(text);
  if (!characters) return notAnsi(text);
  std::string bytes;
  for (const char32_t character : *characters) {
    const std::optional<char> byte = byteOf(character);
    if (!byte) return notAnsi(text);
    bytes += *byte;
  }
  return bytes;
}

}  // namespace korventally
