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

namespace {

// Mantissa and exponent, which has a letter in front or, with three digits, its sign alone.
struct Parts {
  std::string_view mantissa, exponent;
};

Parts partsOf(std::string_view text) {
  const std::size_t letter = text.find_first_of("eE");
  if (letter != text.npos) return {text.substr(0, letter), text.substr(letter + 1)};
  const std::size_t sign = text.size() < 4 ? 0 : text.size() - 4;
  if (sign == 0 || (text[sign] != '-' && text[sign] != '+')) return {text, {}};
  return {text.substr(0, sign), text.substr(sign)};
}

// The power of ten of the first digit that is not zero, which must be there.
std::int64_t magnitudeOf(const Parts& parts) {
  const std::size_t first = parts.mantissa.find_first_of("123456789");
  const std::size_t point = std::min(parts.mantissa.find('.'), parts.mantissa.size());
  const auto power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
  std::string_view digits = parts.exponent;
  if (digits.starts_with('+')) digits.remove_prefix(1);
  std::int64_t exponent = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  constexpr std::int64_t kEndless = 1'000'000'000'000;
  if (read.ec == std::errc::result_out_of_range) exponent = digits[0] == '-' ? -kEndless : kEndless;
  return power + exponent;
}

}  // namespace

std::optional<double> parseModelNumber(std::string_view text) {
  const Parts parts = partsOf(text);
  const bool hasLetter = text.find_first_of("eE") != text.npos;
  std::string spelled(text);
  if (!hasLetter && !parts.exponent.empty() && parts.mantissa.find('.') != text.npos) {
    spelled.insert(parts.mantissa.size(), 1, 'E');
  }
  double value = 0;
  const char* const last = spelled.data() + spelled.size();
  const auto [end, error] = std::from_chars(spelled.data(), last, value);
  if (end != last) return std::nullopt;
  if (error == std::errc::result_out_of_range && magnitudeOf(parts) < 0) return 0.0;
  if (error != std::errc{} || !std::isfinite(value)) return std::nullopt;
  return value;
}

bool hasControl(std::string_view text) {
  return std::ranges::any_of(text, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
  });
}

std::string inQuotes(std::string_view text) {
  constexpr std::size_t kLongest = 260;
  std::string quoted = "\"";
  for (const char c : text.substr(0, kLongest)) {
    quoted += hasControl({&c, 1}) ? '?' : c;
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

std::string hoursText(std::int64_t hours) {
  return counted(static_cast<std::uint64_t>(hours), "hour");
}

std::string counted(std::uint64_t number, std::string_view noun) {
  return grouped(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace korventally::engine
