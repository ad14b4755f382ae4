#include "engine/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace korventally::engine {

std::optional<std::int32_t> parseWhole(std::string_view text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.empty() || text.size() > 9 || !std::ranges::all_of(text, isDigit)) return std::nullopt;
  std::int32_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::optional<double> parseDecimal(std::string_view text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  if (!std::isfinite(number)) return std::nullopt;
  return number;
}

std::string inQuotes(std::string_view text) {
  constexpr std::size_t kLongest = 260;
  std::string quoted = "\"";
  for (const char c : text.substr(0, kLongest)) {
    quoted += static_cast<unsigned char>(c) < 0x20 ? '?' : c;
  }
  return quoted + (text.size() > kLongest ? "...\"" : "\"");
}

std::string grouped(std::uint64_t number) {
  std::string digits = std::to_string(number);
  for (auto left = static_cast<std::ptrdiff_t>(digits.size()) - 3; left > 0; left -= 3) {
    digits.insert(static_cast<std::size_t>(left), 1, ',');
  }
  return digits;
}

std::string counted(std::uint64_t number, std::string_view noun) {
  return grouped(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace korventally::engine
