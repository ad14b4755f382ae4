// Strict reading of numbers, and quoting for messages. No locale is ever asked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korventally::engine {

/// A whole number made of 1 to 9 digits and nothing else: no sign, no blank. Otherwise nothing.
std::optional<std::int32_t> parseWhole(std::string_view text);

/// A finite decimal number that fills the whole text ("91.0", ".5", "-3e2"). No leading plus sign,
/// no blank, no "inf", no "nan", nothing beyond the range of a double. Otherwise nothing.
std::optional<double> parseDecimal(std::string_view text);

/// A number as parseDecimal() takes it, and as programs in Fortran write it: an exponent of three
/// digits has no letter ("0.282465-103"). What is too small for a double is the nearest one, zero.
std::optional<double> parseModelNumber(std::string_view text);

/// True when the text has a byte that is no character but a command, such as a tab or DEL.
bool hasControl(std::string_view text);

/// The text in double quotes, for a message. Bytes that would tear the line apart become "?",
/// and a long text is cut, so that whatever a file holds stays inside one sentence.
std::string inQuotes(std::string_view text);

/// The number with thousands separated by commas: 1234567 gives "1,234,567".
std::string grouped(std::uint64_t number);

/// "1 hour", "2 hours": the number, and the noun with an "s" when it needs one.
std::string counted(std::uint64_t number, std::string_view noun);

/// "1 hour", "8,760 hours": a length of time, not below 0.
std::string hoursText(std::int64_t hours);

}  // namespace korventally::engine
