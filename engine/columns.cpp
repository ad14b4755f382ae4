#include "engine/columns.h"

#include <charconv>
#include <cstdio>

namespace korventally::engine {

namespace {

std::string Padding(std::size_t length, std::size_t width) {
  return std::string(length < width ? width - length : 0, ' ');
}

}  // namespace

std::string Left(std::string_view text, std::size_t width) {
  return std::string(text) + Padding(text.size(), width);
}

std::string Right(std::string_view text, std::size_t width) {
  return Padding(text.size(), width) + std::string(text);
}

std::string Fixed(double number, int decimals, int widest) {
  char text[400];
  for (; decimals >= 0; --decimals) {
    if (std::snprintf(text, sizeof text, "%.*f", decimals, number) <= widest) return text;
  }
  std::snprintf(text, sizeof text, "%.*E", widest - 6, number);
  return text;
}

std::string Shortest(double number) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string Fact(std::string_view label, std::string_view value) {
  return "  " + Left(std::string(label) + ":", 30) + std::string(value);
}

}  // namespace korventally::engine
