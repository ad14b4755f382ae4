#include "engine/columns.h"

#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>

namespace korventally::engine {
namespace {

std::string padding(std::size_t length, std::size_t width) {
  return std::string(length < width ? width - length : 0, ' ');
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
    if (std::snprintf(text, sizeof text, "%.*f", decimals, number) <= widest) return text;
  }
  std::snprintf(text, sizeof text, "%.*E", widest - 6, number);
  return text;
}

std::string shortest(double number) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string fact(std::string_view label, std::string_view value) {
  return "  " + left(std::string(label) + ":", 30) + std::string(value);
}

}  // namespace korventally::engine
