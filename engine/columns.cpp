#include "engine/columns.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "engine/rounding.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

std::string padding(std::size_t length, std::size_t width) {
  return std::string(length < width ? width - length : 0, ' ');
}

// A rounded "-0.0" is a zero.
std::string unsignedZero(std::string text) {
  if (text.starts_with('-') && text.find_first_not_of("-0.") == text.npos) text.erase(0, 1);
  return text;
}

bool showsSide(const std::string& text, double number, double limit) {
  return sideOf(*parseDecimal(text), limit, 0) == sideOf(number, limit);
}

}  // namespace

std::string left(std::string_view text, std::size_t width) {
  return std::string(text) + padding(text.size(), width);
}

std::string right(std::string_view text, std::size_t width) {
  return padding(text.size(), width) + std::string(text);
}

std::string fixed(double number, int decimals, int widest) {
  char text[400];
  for (; decimals >= 0; --decimals) {
    if (std::snprintf(text, sizeof text, "%.*f", decimals, number) <= widest) {
      return unsignedZero(text);
    }
  }
  std::snprintf(text, sizeof text, "%.*E", widest - 6, number);
  return text;
}

std::string figure(double number, double limit) {
  constexpr int kDecimals = 4;
  constexpr int kMostDecimals = 12;
  constexpr int kWidest = 14;
  for (int decimals = kDecimals; decimals <= kMostDecimals; ++decimals) {
    const std::string text = fixed(number, decimals, kWidest);
    if (showsSide(text, number, limit)) return text;
  }
  const bool atLimit = sideOf(number, limit) == 0;
  return shortest(atLimit ? limit : number);
}

std::string shortest(double number) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::vector<std::string> wrapped(std::string_view text) {
  constexpr std::size_t kWidest = 100;
  std::vector<std::string> lines;
  std::string line = " ";
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(' ', begin), text.size());
    const std::string_view word = text.substr(begin, end - begin);
    const bool isFirst = line.find_first_not_of(' ') == line.npos;
    if (!isFirst && line.size() + 1 + word.size() > kWidest) {
      lines.push_back(line);
      line = "   ";
    }
    line += " " + std::string(word);
    begin = end + 1;
  }
  lines.push_back(line);
  return lines;
}

std::string factLine(const Fact& fact) { return "  " + left(fact.label + ":", 30) + fact.value; }

}  // namespace korventally::engine
